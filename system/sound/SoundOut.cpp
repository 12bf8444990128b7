// SPDX-License-Identifier: GPL-3.0-or-later

#include "system/sound/SoundOut.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QElapsedTimer>
#include <QIODevice>
#include <QMediaDevices>
#include <QStringList>
#include <QTimer>

#include <algorithm>
#include <cstring>

namespace tavoli {

namespace {

/// What a device may hold back: a twentieth of a second, after which it is silent.
constexpr int mostBuffered = samplesPerSecond / 20;

QtMessageHandler s_otherMessages = nullptr;

/// Drops what Qt has to say about sound: no learner is to read it on a terminal.
void passMessageOn(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  // Some bear no category of their own.
  static const QStringList beginnings = {QStringLiteral("PulseAudioService"),
                                         QStringLiteral("Stream error"),
                                         QStringLiteral("QAudioSink")};
  const bool ofSound =
      (context.category && std::strncmp(context.category, "qt.multimedia", 13) == 0) ||
      std::any_of(beginnings.begin(), beginnings.end(),
                  [&](const QString& beginning) { return text.contains(beginning); });
  if (!ofSound || type == QtFatalMsg) s_otherMessages(type, context, text);
}

void silenceSoundMessages() {
  const QtMessageHandler before = qInstallMessageHandler(passMessageOn);
  if (before != passMessageOn) s_otherMessages = before;
}

/// Moves the stream on, on its thread: into a device, or past a clock. The device gets all that it
/// has room for at each tick; were it left to fetch what it needs, it would wait for more at a time
/// than so small a buffer ever has room for.
class Reader final : public QObject {
 public:
  Reader(Mixer& mixer, std::function<void()> onSilent)
      : m_mixer(mixer), m_onSilent(std::move(onSilent)) {}

  void start(SoundOut::Device device) {
    m_tick = new QTimer(this);
    m_tick->setTimerType(Qt::PreciseTimer);
    connect(m_tick, &QTimer::timeout, this, [this] {
      if (m_sink)
        fillSink();
      else
        readByClock();
    });
    m_time.start();
    if (device == SoundOut::Device::none || !openSink()) startClock();
    constexpr int tick = 10;
    m_tick->start(tick);
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
    m_device = m_sink->start();
    return m_device && m_sink->error() == QAudio::NoError;
  }

  void fillSink() {
    const qint64 room = m_sink->bytesFree() / qint64{sizeof(qint16)};
    if (m_sink->state() == QAudio::StoppedState) return startClock();
    const qint64 count = std::min<qint64>(room, mostBuffered);
    const qint64 missing = count - static_cast<qint64>(m_waiting.size());
    if (missing > 0) {
      m_piece.resize(missing);
      m_mixer.read(m_piece);
      m_waiting.insert(m_waiting.end(), m_piece.begin(), m_piece.end());
    }
    const qint64 bytes =
        std::min(count, static_cast<qint64>(m_waiting.size())) * qint64{sizeof(qint16)};
    const qint64 written = m_device->write(reinterpret_cast<const char*>(m_waiting.data()), bytes);
    // A device that takes nothing for so long has stopped, whatever it says.
    constexpr qint64 longest = 1000;
    if (written > 0) {
      m_waiting.erase(m_waiting.begin(), m_waiting.begin() + written / qint64{sizeof(qint16)});
      m_time.restart();
    } else if (m_time.elapsed() > longest) {
      startClock();
    }
  }

  void startClock() {
    m_device = nullptr;
    m_sink.reset();
    m_time.restart();
    m_onSilent();
  }

  void readByClock() {
    constexpr qint64 perSecond = 1000;
    const qint64 due = m_time.elapsed() * samplesPerSecond / perSecond;
    // What a machine slept through is not made up for.
    m_read = std::max<qint64>(m_read, due - samplesPerSecond);
    while (m_read < due) {
      m_piece.resize(std::min<qint64>(due - m_read, mostBuffered));
      m_mixer.read(m_piece);
      m_read += static_cast<qint64>(m_piece.size());
    }
  }

  Mixer& m_mixer;
  std::function<void()> m_onSilent;
  QTimer* m_tick = nullptr;
  QElapsedTimer m_time;  ///< since the device took something; by the clock, since it runs
  std::unique_ptr<QAudioSink> m_sink;
  QIODevice* m_device = nullptr;  ///< the sink's, to be written to
  Samples m_piece;
  Samples m_waiting;  ///< read, and not taken by the device
  qint64 m_read = 0;  ///< by the clock
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
