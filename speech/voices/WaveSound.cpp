// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/voices/WaveSound.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <cstring>

#include "system/sound/Resampler.h"

namespace tavoli {

namespace {

enum class Coding : quint16 { wholeNumbers = 1, floatingPoint = 3, extensible = 0xFFFE };

struct Format {
  Coding coding = Coding::wholeNumbers;
  int channels = 0;
  int rate = 0;
  int bits = 0;

  bool known() const {
    constexpr int mostChannels = 8;
    constexpr int lowestRate = 4000;
    constexpr int highestRate = 192000;
    if (channels < 1 || channels > mostChannels || rate < lowestRate || rate > highestRate)
      return false;
    if (coding == Coding::floatingPoint) return bits == 32;
    return coding == Coding::wholeNumbers && (bits == 8 || bits == 16 || bits == 24 || bits == 32);
  }
};

template <typename Number>
Number numberAt(QByteArrayView bytes, qsizetype at) {
  return qFromLittleEndian<Number>(bytes.data() + at);
}

Format formatOf(QByteArrayView chunk) {
  constexpr qsizetype plainSize = 16;
  constexpr qsizetype codingOfExtensible = 24;
  if (chunk.size() < plainSize) return {};
  Format format{static_cast<Coding>(numberAt<quint16>(chunk, 0)), numberAt<quint16>(chunk, 2),
                numberAt<qint32>(chunk, 4), numberAt<quint16>(chunk, 14)};
  if (format.coding == Coding::extensible && chunk.size() >= codingOfExtensible + 2)
    format.coding = static_cast<Coding>(numberAt<quint16>(chunk, codingOfExtensible));
  return format;
}

/// One sample, as 16 bits.
double sampleAt(QByteArrayView data, qsizetype at, const Format& format) {
  constexpr double full = 32767;
  constexpr int byteShift = 8;
  if (format.coding == Coding::floatingPoint) {
    const float value = numberAt<float>(data, at);
    return std::isfinite(value) ? full * value : 0;
  }
  switch (format.bits) {
    case 8:
      return (static_cast<quint8>(data[at]) - 128) * 256.0;
    case 16:
      return numberAt<qint16>(data, at);
    case 24:
      return numberAt<qint16>(data, at + 1);
    default:
      return numberAt<qint32>(data, at) >> (2 * byteShift);
  }
}

Samples samplesOf(QByteArrayView data, const Format& format) {
  const qsizetype width = format.bits / 8;
  const qsizetype frame = width * format.channels;
  Samples mono;
  mono.reserve(data.size() / frame);
  for (qsizetype at = 0; at + frame <= data.size(); at += frame) {
    double sum = 0;
    for (int channel = 0; channel < format.channels; ++channel)
      sum += sampleAt(data, at + channel * width, format);
    mono.push_back(
        static_cast<qint16>(std::lround(std::clamp(sum / format.channels, -32768.0, 32767.0))));
  }
  Samples samples;
  Resampler resampler(format.rate);
  resampler.feed(mono, samples);
  resampler.finish(samples);
  return samples;
}

}  // namespace

std::optional<Samples> soundOfWave(const QByteArray& file) {
  constexpr qsizetype fileHead = 12;
  constexpr qsizetype chunkHead = 8;
  if (!file.startsWith("RIFF") || file.mid(8, 4) != "WAVE") return std::nullopt;
  Format format;
  const QByteArrayView bytes(file);
  for (qsizetype at = fileHead; at + chunkHead <= bytes.size();) {
    const QByteArrayView name = bytes.sliced(at, 4);
    const qsizetype said = numberAt<quint32>(bytes, at + 4);
    const qsizetype size = std::min(said, bytes.size() - at - chunkHead);
    const QByteArrayView chunk = bytes.sliced(at + chunkHead, size);
    if (name == "fmt ") format = formatOf(chunk);
    if (name == "data") {
      if (!format.known()) return std::nullopt;
      // Who does not know the length beforehand may write none.
      return samplesOf(said == 0 ? bytes.sliced(at + chunkHead) : chunk, format);
    }
    at += chunkHead + size + size % 2;
  }
  return std::nullopt;
}

}  // namespace tavoli
