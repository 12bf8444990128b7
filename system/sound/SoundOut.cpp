// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/sound/SoundOut.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QElapsedTimer>
#include <QIODevice>
#include <QMediaDevices>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstring>

namespace tavoli {

namespace {

/// What a device may hold back: a twentieth of a second, after which it is silent.
constexpr int mostBuffered = samplesPerSecond / 20;

QtMessageHandler s_otherMessages = nullptr;

/// Drops what Qt has to say about sound: no learner is to read it on a terminal.
void passMessageOn(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  const bool ofSound =
      (context.category && std::strncmp(context.category, "qt.multimedia", 13) == 0) ||
      text.contains(QStringLiteral("PulseAudioService"));
  if (!ofSound || type == QtFatalMsg) s_otherMessages(type, context, text);
}

void silenceSoundMessages() {
  const QtMessageHandler before = qInstallMessageHandler(passMessageOn);
  if (before != passMessageOn) s_otherMessages = before;
}

/// The stream as what a QAudioSink reads.
class StreamDevice final : public QIODevice {
 public:
  explicit StreamDevice(Mixer& mixer) : m_mixer(mixer) { open(QIODevice::ReadOnly); }
  bool isSequential() const override { return true; }
  qint64 bytesAvailable() const override { return mostBuffered * qint64{sizeof(qint16)}; }

 protected:
  qint64 readData(char* data, qint64 bytes) override {
    const std::size_t count = std::min<qint64>(bytes / qint64{sizeof(qint16)}, mostBuffered);
    m_samples.resize(count);
    m_mixer.read(m_samples);
    std::memcpy(data, m_samples.data(), count * sizeof(qint16));
    return static_cast<qint64>(count * sizeof(qint16));
  }
  qint64 writeData(const char*, qint64) override { return -1; }

 private:
  Mixer& m_mixer;
  Samples m_samples;
};

/// Reads the stream on its thread, by a device or by a clock.
class Reader final : public QObject {
 public:
  Reader(Mixer& mixer, std::function<void()> onSilent)
      : m_mixer(mixer), m_onSilent(std::move(onSilent)), m_stream(mixer) {}

  void start(SoundOut::Device device) {
    if (device == SoundOut::Device::standard && openSink()) return;
    startClock();
  }

 private:
  bool openSink() {
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull()) return false;
    QAudioFormat format;
    format.setSampleRate(samplesPerSecond);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    m_sink = std::make_unique<QAudioSink>(device, format);
    m_sink->setBufferSize(mostBuffered * qsizetype{sizeof(qint16)});
    m_sink->start(&m_stream);
    if (m_sink->error() != QAudio::NoError || m_sink->state() == QAudio::StoppedState) {
      m_sink.reset();
      return false;
    }
    connect(m_sink.get(), &QAudioSink::stateChanged, this, [this](QAudio::State state) {
      if (state == QAudio::StoppedState) startClock();
    });
    return true;
  }

  void startClock() {
    if (m_clock) return;
    if (m_sink) {
      m_sink->disconnect(this);
      // It is still telling of its end.
      m_sink.release()->deleteLater();
    }
    m_clock = new QTimer(this);
    m_clock->setTimerType(Qt::PreciseTimer);
    connect(m_clock, &QTimer::timeout, this, [this] { readByClock(); });
    constexpr int tick = 10;
    m_clock->start(tick);
    m_time.start();
    m_onSilent();
  }

  void readByClock() {
    constexpr qint64 perSecond = 1000;
    const qint64 due = m_time.elapsed() * samplesPerSecond / perSecond;
    // What a machine slept through is not made up for.
    m_read = std::max<qint64>(m_read, due - samplesPerSecond);
    std::array<qint16, mostBuffered> piece{};
    while (m_read < due) {
      const qint64 count = std::min<qint64>(due - m_read, mostBuffered);
      m_mixer.read(std::span(piece).first(count));
      m_read += count;
    }
  }

  Mixer& m_mixer;
  std::function<void()> m_onSilent;
  StreamDevice m_stream;
  std::unique_ptr<QAudioSink> m_sink;
  QTimer* m_clock = nullptr;
  QElapsedTimer m_time;
  qint64 m_read = 0;
};

}  // namespace

SoundOut::SoundOut(Mixer& mixer, std::function<void()> onSilent, Device device) {
  silenceSoundMessages();
  auto* reader = new Reader(mixer, [home = &m_home, onSilent = std::move(onSilent)] {
    if (onSilent) QMetaObject::invokeMethod(home, onSilent, Qt::QueuedConnection);
  });
  reader->moveToThread(&m_thread);
  QObject::connect(&m_thread, &QThread::finished, reader, &QObject::deleteLater);
  QObject::connect(&m_thread, &QThread::started, reader,
                   [reader, device] { reader->start(device); });
  m_thread.setObjectName(QStringLiteral("sound"));
  m_thread.start(QThread::TimeCriticalPriority);
}

SoundOut::~SoundOut() {
  m_thread.quit();
  m_thread.wait();
}

}  // namespace tavoli
