#include "MVPluginQt/EventSender.h"

namespace MV {

CEventSender::CEventSender(QObject* parent)
    : QObject(parent)
{
}

} // namespace MV
