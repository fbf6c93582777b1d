// Emptying the media paths that a resolution filled in, so that a published resource carries
// its media references without any path of the machine that published it.
#pragma once

#include <lumora/resources/types/type10.h>
#include <lumora/resources/types/type28.h>
#include <lumora/resources/types/type40.h>
#include <lumora/resources/types/type5.h>

namespace lumora {

// Every item's media, every item's content, and of every part its content and its elements.
void ClearMediaPaths(Type40Resource& resource);
// The medium of every sentence.
void ClearMediaPaths(Type5Resource& resource);
// The medium of every word.
void ClearMediaPaths(Type10Resource& resource);
// The medium of every sentence.
void ClearMediaPaths(Type28Resource& resource);

}  // namespace lumora
