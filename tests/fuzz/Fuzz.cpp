#include "tests/fuzz/Fuzz.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace Fuzz {

namespace {

int g_warnings = 0;

void CountWarning(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    ++g_warnings;
    if (type == QtFatalMsg) {
        Fail(message);
    }
}

} // namespace

void StartApplication(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1");
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi, true);
    // Lives as long as the process.
    static QApplication application(*argc, *argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qInstallMessageHandler(CountWarning);
}

int WarningCount()
{
    return g_warnings;
}

QString Folder()
{
    static const QTemporaryDir folder;
    return folder.path();
}

QString WriteFile(const char* name, const QByteArray& bytes)
{
    const QString path = Folder() + QLatin1Char('/') + QLatin1String(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        Fail(QLatin1String("cannot write ") + path);
    }
    return path;
}

void Fail(const QString& why)
{
    fprintf(stderr, "%s\n", qPrintable(why));
    std::abort();
}

int Numbers::Byte()
{
    if (m_left == 0) {
        return 0;
    }
    --m_left;
    return *m_data++;
}

float Numbers::Float()
{
    quint32 bits = 0;
    for (int i = 0; i < 4; ++i) {
        bits = bits << 8 | quint32(Byte());
    }
    float number = 0;
    std::memcpy(&number, &bits, sizeof(number));
    return number;
}

} // namespace Fuzz
