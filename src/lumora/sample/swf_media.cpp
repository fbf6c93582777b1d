#include <lumora/sample/swf_media.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numbers>

#include <lumora/sample/swf_shape.h>
#include <lumora/sample/swf_writer.h>

namespace lumora::sample {
namespace {

constexpr uint8_t kVersion = 6;
constexpr uint16_t kFramesPerSecond = 12;
constexpr int32_t kWidth = 160 * kTwipsPerPixel;
constexpr int32_t kHeight = 120 * kTwipsPerPixel;
constexpr int32_t kMargin = 8 * kTwipsPerPixel;
constexpr int32_t kRadius = 36 * kTwipsPerPixel;
constexpr uint32_t kBackground = 0xFFFFFF;

constexpr uint16_t kCard = 1;
constexpr uint16_t kDisc = 2;
constexpr uint16_t kSound = 3;

// Colours far enough apart to tell media apart at a glance; the disc takes a later one.
constexpr uint32_t kPalette[] = {0x1F77B4, 0xFF7F0E, 0x2CA02C, 0xD62728,
                                 0x9467BD, 0x8C564B, 0xE377C2, 0x17BECF};
constexpr uint32_t kPaletteSize = std::size(kPalette);

// The tone: 16-bit little-endian samples, mono, at 5,512 Hz (enough for pitches below 1 kHz,
// and the glossary alone holds a thousand sounds), for 0.3 s, faded in and out over 10 ms so
// that it starts and stops without a click.
constexpr uint8_t kUncompressedLittleEndian = 3;
constexpr uint8_t kRate5512 = 0;
constexpr uint8_t kSixteenBit = 1;
constexpr uint8_t kMono = 0;
constexpr int kSampleRate = 5512;
constexpr int kSamples = kSampleRate * 3 / 10;
constexpr int kFade = kSampleRate / 100;
constexpr double kAmplitude = 0.4 * 32767;

SwfMovie NewMovie() { return SwfMovie(kVersion, {0, kWidth, 0, kHeight}, kFramesPerSecond); }

std::string SetBackground() {
  std::string body;
  PutRgb(body, kBackground);
  return body;
}

std::string Card(uint32_t colour) {
  SwfShape card(kCard, {kMargin, kWidth - kMargin, kMargin, kHeight - kMargin}, {colour});
  card.MoveTo(kMargin, kMargin, 1);
  card.LineTo(kWidth - kMargin, kMargin);
  card.LineTo(kWidth - kMargin, kHeight - kMargin);
  card.LineTo(kMargin, kHeight - kMargin);
  card.LineTo(kMargin, kMargin);
  return card.Body();
}

// A circle from eight quadratic curves, each through the point where the tangents at its two
// ends meet; the ends are rounded to twips on their own so that the outline closes exactly.
std::string Disc(uint32_t colour) {
  const int32_t cx = kWidth / 2;
  const int32_t cy = kHeight / 2;
  SwfShape disc(kDisc, {cx - kRadius, cx + kRadius, cy - kRadius, cy + kRadius}, {colour});
  const double step = std::numbers::pi / 4;
  const double controlRadius = kRadius / std::cos(step / 2);
  auto at = [](int32_t centre, double radius, double f) {
    return centre + static_cast<int32_t>(std::lround(radius * f));
  };
  disc.MoveTo(cx + kRadius, cy, 1);
  for (int k = 1; k <= 8; ++k) {
    const double end = step * k;
    const double middle = end - step / 2;
    disc.CurveTo(at(cx, controlRadius, std::cos(middle)), at(cy, controlRadius, std::sin(middle)),
                 at(cx, kRadius, std::cos(end)), at(cy, kRadius, std::sin(end)));
  }
  return disc.Body();
}

// Puts character `id` on the stage at `depth`, where it stays.
std::string Place(uint16_t id, uint16_t depth) {
  constexpr uint8_t kHasCharacter = 0x02;
  std::string body(1, static_cast<char>(kHasCharacter));
  PutU16(body, depth);
  PutU16(body, id);
  return body;
}

void AddDrawing(SwfMovie& movie, uint32_t number) {
  movie.Add(kSwfDefineShape, Card(kPalette[number % kPaletteSize]));
  movie.Add(kSwfDefineShape, Disc(kPalette[(number + 3) % kPaletteSize]));
  movie.Add(kSwfPlaceObject2, Place(kCard, 1));
  movie.Add(kSwfPlaceObject2, Place(kDisc, 2));
}

// Twelve pitches a semitone apart from A4 up, one chosen by `number`.
std::string ToneSamples(uint32_t number) {
  const double hertz = 440.0 * std::exp2(static_cast<double>(number % 12) / 12.0);
  std::string samples;
  for (int i = 0; i < kSamples; ++i) {
    const double fade = std::min(
        {1.0, static_cast<double>(i) / kFade, static_cast<double>(kSamples - 1 - i) / kFade});
    const double wave = std::sin(2 * std::numbers::pi * hertz * i / kSampleRate);
    PutU16(samples,
           static_cast<uint16_t>(static_cast<int16_t>(std::lround(kAmplitude * fade * wave))));
  }
  return samples;
}

void AddTone(SwfMovie& movie, uint32_t number) {
  std::string sound;
  PutU16(sound, kSound);
  sound.push_back(static_cast<char>(kUncompressedLittleEndian << 4 | kRate5512 << 2 |
                                    kSixteenBit << 1 | kMono));
  PutU32(sound, kSamples);
  movie.Add(kSwfDefineSound, sound + ToneSamples(number));
  std::string start;
  PutU16(start, kSound);
  start.push_back('\0');  // played once, whole, without an envelope
  movie.Add(kSwfStartSound, start);
}

}  // namespace

std::string SwfPicture(uint32_t number) {
  SwfMovie movie = NewMovie();
  movie.Add(kSwfSetBackgroundColor, SetBackground());
  AddDrawing(movie, number);
  movie.ShowFrame();
  return movie.Finish();
}

std::string SwfTone(uint32_t number) {
  SwfMovie movie = NewMovie();
  movie.Add(kSwfSetBackgroundColor, SetBackground());
  AddTone(movie, number);
  movie.ShowFrame();
  return movie.Finish();
}

std::string SwfClip(uint32_t number) {
  SwfMovie movie = NewMovie();
  movie.Add(kSwfSetBackgroundColor, SetBackground());
  AddDrawing(movie, number);
  AddTone(movie, number);
  movie.ShowFrame();
  return movie.Finish();
}

}  // namespace lumora::sample
