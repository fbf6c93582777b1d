// The Flash media of the sample: small movies a Flash player shows and plays, so that a
// person browsing the sample sees its pictures and hears its sounds. Each varies with the
// medium's number, so that neighbouring media can be told apart.
#pragma once

#include <cstdint>
#include <string>

namespace lumora::sample {

// A picture: a card of one colour with a disc of another on it.
std::string SwfPicture(uint32_t number);

// A sound: a short tone, started by the movie's only frame.
std::string SwfTone(uint32_t number);

// A clip, for videos delivered as Flash: the picture and the tone together.
std::string SwfClip(uint32_t number);

}  // namespace lumora::sample
