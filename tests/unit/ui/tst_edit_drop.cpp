#include "ui/EditDrop.h"

#include "tests/support/TestCase.h"
#include "ui/WidgetAccess.h"

#include <QApplication>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

/// A box as another widget library may have it: it commits at each loss of focus and has no way to drop an edit.
class ForeignBox : public QSpinBox
{
    Q_OBJECT

public:
    using QSpinBox::QSpinBox;

Q_SIGNALS:
    void RecordEditingValue();

protected:
    void focusOutEvent(QFocusEvent* event) override
    {
        QSpinBox::focusOutEvent(event);
        Q_EMIT RecordEditingValue();
    }
};

/// A widget that can drop an edit.
class DroppingBox : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    Q_INVOKABLE void DropEdit()
    {
        ++drops;
        isTold = MV::IsDroppingEdits();
    }

    int drops = 0;
    bool isTold = false;
};

} // namespace

/// Edits that are dropped because something else is to be shown.
class TestEditDrop : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void widgetsAreAskedToDrop();
    void whatAForeignBoxCommitsMeanwhileIsIgnored();
    void otherBoxesKeepTheFocus();
};

void TestEditDrop::widgetsAreAskedToDrop()
{
    DroppingBox root;
    DroppingBox outside;
    auto* inside = new QWidget(&root);
    auto* child = new DroppingBox(inside);
    MV::DropEdits(root);
    QCOMPARE(root.drops, 1);
    QCOMPARE(child->drops, 1);
    QCOMPARE(outside.drops, 0);
    QVERIFY(child->isTold);
    QVERIFY(!MV::IsDroppingEdits());
}

void TestEditDrop::whatAForeignBoxCommitsMeanwhileIsIgnored()
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* box = new ForeignBox;
    auto* other = new QSpinBox;
    layout->addWidget(box);
    layout->addWidget(other);
    QVector<int> written;
    MV::ConnectEdited(box, &window, [&written](int value) { written.append(value); });
    window.show();
    QApplication::setActiveWindow(&window);
    box->setFocus();
    QVERIFY(box->hasFocus());
    box->selectAll();
    QTest::keyClicks(box, QStringLiteral("12"));

    MV::DropEdits(window);
    QVERIFY(box->hasFocus());
    QCOMPARE(written, QVector<int>());
    QTest::keyClick(box, Qt::Key_Up);
    other->setFocus();
    QCOMPARE(written, QVector<int>({13}));
}

void TestEditDrop::otherBoxesKeepTheFocus()
{
    QWidget window;
    QWidget form(&window);
    auto* box = new ForeignBox(&window);
    int commits = 0;
    connect(box, &ForeignBox::RecordEditingValue, this, [&commits] { ++commits; });
    window.show();
    QApplication::setActiveWindow(&window);
    box->setFocus();
    QVERIFY(box->hasFocus());
    MV::DropEdits(form);
    QVERIFY(box->hasFocus());
    QCOMPARE(commits, 0);
}

SOFTCLOTH_TEST(TestEditDrop)
#include "tst_edit_drop.moc"
