// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/voices/SpeechStream.h"

#include <algorithm>

namespace tavoli {

namespace {

constexpr std::size_t enoughReady = std::size_t{10} * samplesPerSecond;
constexpr std::size_t fadeLength = samplesPerSecond / 100;

}  // namespace

void SpeechStream::open(int number) {
  const std::lock_guard lock(m_lock);
  m_texts.push_back({number});
  m_writing = true;
}

std::size_t SpeechStream::ready() const {
  std::size_t sum = 0;
  for (const Text& text : m_texts) sum += text.rest();
  return sum;
}

bool SpeechStream::append(std::span<const qint16> samples) {
  std::unique_lock lock(m_lock);
  m_taken.wait(lock, [&] { return !m_writing || ready() < enoughReady; });
  if (!m_writing) return false;
  Text& last = m_texts.back();
  // What was read goes when it is the greater part.
  if (last.next > last.rest()) {
    last.samples.erase(last.samples.begin(),
                       last.samples.begin() + static_cast<std::ptrdiff_t>(last.next));
    last.next = 0;
  }
  last.samples.insert(last.samples.end(), samples.begin(), samples.end());
  return true;
}

bool SpeechStream::wanted() {
  const std::lock_guard lock(m_lock);
  return m_writing;
}

void SpeechStream::close() {
  const std::lock_guard lock(m_lock);
  if (m_writing) m_texts.back().closed = true;
  m_writing = false;
}

void SpeechStream::clear() {
  const std::lock_guard lock(m_lock);
  m_fading.clear();
  if (!m_texts.empty() && m_texts.front().begun) {
    const Text& text = m_texts.front();
    const std::size_t count = std::min(text.rest(), fadeLength);
    for (std::size_t i = 0; i < count; ++i)
      m_fading.push_back(static_cast<qint16>(
          text.samples[text.next + i] * static_cast<int>(count - i) / static_cast<int>(count)));
  }
  m_texts.clear();
  m_writing = false;
  m_taken.notify_all();
}

std::size_t SpeechStream::read(std::span<qint16> out) {
  const std::lock_guard lock(m_lock);
  std::size_t filled = std::min(out.size(), m_fading.size());
  std::copy_n(m_fading.begin(), filled, out.begin());
  m_fading.erase(m_fading.begin(), m_fading.begin() + static_cast<std::ptrdiff_t>(filled));
  while (!m_texts.empty() && m_fading.empty()) {
    Text& text = m_texts.front();
    const std::size_t count = std::min(out.size() - filled, text.rest());
    if (!text.begun && (count > 0 || text.closed)) {
      text.begun = true;
      m_told(Event::begins, text.number);
    }
    std::copy_n(text.samples.begin() + static_cast<std::ptrdiff_t>(text.next), count,
                out.begin() + static_cast<std::ptrdiff_t>(filled));
    text.next += count;
    filled += count;
    if (text.rest() > 0 || !text.closed) break;
    m_told(Event::ends, text.number);
    m_texts.pop_front();
  }
  m_taken.notify_all();
  return filled;
}

}  // namespace tavoli
