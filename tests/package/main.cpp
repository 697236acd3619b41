#include <BFQtCustomWidgetPluginU/QSpinBoxEx.h>
#include <MVPluginQt/EventSender.h>

#include <QApplication>

/// Uses something of both libraries, so that both are linked and loaded.
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const MV::CEventSender sender;
    QSpinBoxEx box;
    box.setValue(7);
    const bool isWhole = sender.metaObject()->indexOfSignal("Played()") >= 0 && box.value() == 7;
    return isWhole ? 0 : 1;
}
