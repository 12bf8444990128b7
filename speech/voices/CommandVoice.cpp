// SPDX-License-Identifier: GPL-3.0-or-later

#include "speech/voices/CommandVoice.h"

#include <QElapsedTimer>
#include <QProcess>

#include <csignal>
#include <unistd.h>

#include "speech/voices/WaveSound.h"

namespace tavoli {

namespace {

/// The learner's program. It leads a process group of its own, so that it ends with all that it has
/// started.
class VoiceProcess {
 public:
  VoiceProcess() {
    m_process.setChildProcessModifier([] { setpgid(0, 0); });
    m_process.setStandardErrorFile(QProcess::nullDevice());
  }
  ~VoiceProcess() {
    if (m_group > 0) kill(-m_group, SIGKILL);
    m_process.waitForFinished();
  }
  VoiceProcess(const VoiceProcess&) = delete;
  VoiceProcess& operator=(const VoiceProcess&) = delete;

  bool start(const QStringList& words, const QString& text) {
    m_process.start(words.first(), words.mid(1));
    if (!m_process.waitForStarted()) return false;
    m_group = static_cast<pid_t>(m_process.processId());
    m_process.write(text.toUtf8() + '\n');
    m_process.closeWriteChannel();
    return true;
  }

  /// Waits a moment for more of what it writes, and appends it. False when it has ended.
  bool read(QByteArray& written) {
    constexpr int moment = 30;
    const bool running = m_process.state() != QProcess::NotRunning;
    if (running) m_process.waitForReadyRead(moment);
    written += m_process.readAll();
    return running;
  }

  bool succeeded() const {
    return m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
  }

 private:
  QProcess m_process;
  pid_t m_group = 0;
};

}  // namespace

std::optional<QString> CommandVoice::say(const QString& text, const Pace&, SampleTaker& taker) {
  const QStringList words = QProcess::splitCommand(m_command);
  if (words.isEmpty()) return QStringLiteral("音声のコマンドが指定されていません。");
  const QString& program = words.first();
  VoiceProcess process;
  if (!process.start(words, withoutControls(text)))
    return QStringLiteral("音声のコマンド %1 を始められません。").arg(program);
  QElapsedTimer time;
  time.start();
  QByteArray written;
  while (process.read(written)) {
    if (!taker.wanted()) return std::nullopt;
    if (written.size() > m_limits.bytes)
      return QStringLiteral("音声のコマンド %1 の出力が長すぎます。").arg(program);
    if (time.elapsed() > m_limits.milliseconds)
      return QStringLiteral("音声のコマンド %1 が時間内に終わりませんでした。").arg(program);
  }
  if (!process.succeeded())
    return QStringLiteral("音声のコマンド %1 が失敗しました。").arg(program);
  const std::optional<Samples> samples = soundOfWave(written);
  if (!samples)
    return QStringLiteral("音声のコマンド %1 の出力がWAV形式ではありません。").arg(program);
  taker.take(*samples);
  return std::nullopt;
}

}  // namespace tavoli
