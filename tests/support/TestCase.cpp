#include "tests/support/TestCase.h"

#include <QApplication>
#include <QStringList>
#include <QWidget>

namespace {

QtMessageHandler g_testLibraryHandler = nullptr;
QStringList g_expectedWarnings;

bool TakeExpected(const QString& message)
{
    for (int i = 0; i < g_expectedWarnings.size(); ++i) {
        if (message.contains(g_expectedWarnings.at(i))) {
            g_expectedWarnings.removeAt(i);
            return true;
        }
    }
    return false;
}

/// What the platform without a display says of itself, nothing about the code under test.
bool IsPlatformNoise(const QString& message)
{
    return message.startsWith(QLatin1String("This plugin does not support"));
}

void HandleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool isComplaint = type == QtWarningMsg || type == QtCriticalMsg;
    if (isComplaint && (IsPlatformNoise(message) || TakeExpected(message))) {
        return;
    }
    if (isComplaint) {
        const QByteArray text = "unexpected warning: " + message.toLocal8Bit();
        QTest::qFail(text.constData(), __FILE__, __LINE__);
    }
    g_testLibraryHandler(type, context, message);
}

} // namespace

void TestCase::ExpectWarning(const QString& part)
{
    g_expectedWarnings.append(part);
}

void TestCase::init()
{
    // The test library sets its own handler when the run starts, so ours goes on top of it here.
    const QtMessageHandler before = qInstallMessageHandler(HandleMessage);
    if (before != HandleMessage) {
        g_testLibraryHandler = before;
    }
    g_expectedWarnings.clear();
    const QWidgetList windows = QApplication::topLevelWidgets();
    m_windowsBefore = QSet<QWidget*>(windows.cbegin(), windows.cend());
    SetUp();
}

void TestCase::cleanup()
{
    TearDown();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QStringList leaked;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        if (!m_windowsBefore.contains(const_cast<QWidget*>(window))) {
            leaked.append(QString::fromLatin1(window->metaObject()->className()) + QLatin1Char(' ') +
                          window->objectName());
        }
    }
    const QStringList missing = g_expectedWarnings;
    g_expectedWarnings.clear();
    QVERIFY2(missing.isEmpty(), qPrintable(QStringLiteral("warnings that did not come: ") + missing.join(u';')));
    QVERIFY2(leaked.isEmpty(), qPrintable(QStringLiteral("windows left behind: ") + leaked.join(u';')));
}
