#include "ui/EditDrop.h"

#include <QAbstractSpinBox>
#include <QMetaMethod>
#include <QPointer>
#include <QWidget>

namespace MV {

namespace {

int droppings = 0;

class CDropping
{
public:
    CDropping() { ++droppings; }
    ~CDropping() { --droppings; }
    Q_DISABLE_COPY_MOVE(CDropping)
};

/// \return false when \p widget has no such function
bool CallDropEdit(QWidget& widget)
{
    const QMetaObject& type = *widget.metaObject();
    const int index = type.indexOfMethod("DropEdit()");
    return index >= 0 && type.method(index).invoke(&widget, Qt::DirectConnection);
}

void TakeFocusForAMoment(const QPointer<QWidget>& box)
{
    box->clearFocus();
    if (box) {
        box->setFocus();
    }
}

} // namespace

void DropEdits(QWidget& root)
{
    const CDropping dropping;
    CallDropEdit(root);
    const auto widgets = root.findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (!CallDropEdit(*widget) && widget->hasFocus() && qobject_cast<QAbstractSpinBox*>(widget)) {
            TakeFocusForAMoment(widget);
        }
    }
}

bool IsDroppingEdits()
{
    return droppings > 0;
}

} // namespace MV
