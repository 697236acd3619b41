#include "tests/torture/ChildProcess.h"

#include <QRegularExpression>
#include <QString>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <sys/wait.h>
#include <unistd.h>

namespace Torture {

namespace {

int g_patience = 20;

/// Two ends of a pipe.
struct Pipe
{
    Pipe()
    {
        if (pipe(ends.data()) != 0) {
            qFatal("no pipe");
        }
    }
    std::array<int, 2> ends{};
};

void WriteAll(int file, const QByteArray& bytes)
{
    for (int written = 0; written < bytes.size();) {
        const auto count = write(file, bytes.constData() + written, std::size_t(bytes.size() - written));
        if (count <= 0) {
            return;
        }
        written += int(count);
    }
}

QByteArray ReadAll(int file)
{
    QByteArray bytes;
    std::array<char, 4096> block{};
    for (;;) {
        const auto count = read(file, block.data(), block.size());
        if (count > 0) {
            bytes.append(block.data(), int(count));
        } else if (count == 0 || errno != EINTR) {
            return bytes;
        }
    }
}

/// The lines of a sanitizer's report, or the last ones of anything else.
QString Essence(const QString& said)
{
    const QStringList lines = said.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QStringList report = lines.filter(
        QRegularExpression(QStringLiteral("ERROR: |runtime error|SUMMARY|^ +#[0-4] .*/(material|preset|sections|plugin|"
                                          "panel|sdk|ui|host|tests)/")));
    return (report.isEmpty() ? lines.mid(qMax(0, lines.size() - 3)) : report.mid(0, 8)).join(QLatin1String(" | "));
}

[[noreturn]] void WorkAndEnd(const std::function<QByteArray()>& work, int answer, int said)
{
    alarm(unsigned(g_patience));
    dup2(said, STDERR_FILENO);
    const QByteArray bytes = work();
    WriteAll(answer, bytes);
    fflush(nullptr);
    // Nothing is taken down: the parent still has it.
    _exit(0);
}

} // namespace

void SetPatience(int seconds)
{
    g_patience = seconds;
}

ChildResult RunInChild(const std::function<QByteArray()>& work)
{
    const Pipe answer;
    FILE* said = tmpfile();
    fflush(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        close(answer.ends[0]);
        WorkAndEnd(work, answer.ends[1], fileno(said));
    }
    close(answer.ends[1]);
    ChildResult result;
    result.answer = ReadAll(answer.ends[0]);
    close(answer.ends[0]);
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0 || result.answer.isEmpty()) {
        rewind(said);
        const QString essence = Essence(QString::fromLocal8Bit(ReadAll(fileno(said))));
        const int signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
        result.problem = signal == SIGALRM ? QStringLiteral("hangs")
                         : signal != 0     ? QStringLiteral("signal %1").arg(signal)
                                           : QStringLiteral("ended with %1").arg(WEXITSTATUS(status));
        result.problem += QLatin1String(": ") + essence;
    }
    fclose(said);
    return result;
}

} // namespace Torture
