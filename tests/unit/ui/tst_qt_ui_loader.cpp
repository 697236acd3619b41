#include "ui/QtUiLoader.h"

#include "tests/support/TestCase.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <memory>

/// A form "Form" with a widget of each kind in the group box "qtGroup", and a target with "qtOutside" around it.
class TestQtUiLoader : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void withoutRootEveryNameIsRecorded_data();
    void withoutRootEveryNameIsRecorded();
    void rootItselfIsFound();
    void rootOfAnotherTypeIsNullAndNotRecorded();
    void rootHidesADescendantOfTheSameName();
    void everyKindIsFoundBelowTheRoot();
    void descendantOfAnotherTypeIsRecorded();
    void typeDecidesBetweenEqualNames();
    void secondRootIsSearchedAfterTheRoot();
    void rootGoesBeforeTheSecondRoot();
    void secondRootItselfIsNotFound();
    void missingNamesAreRecordedInOrder();
    void formWithoutGroupBoxLeavesItNull();
    void customWidgetIsFoundByItsPlainWidget();
    void customWidgetOfAnotherClassIsNullAndNotRecorded();
    void rootsCanBeTakenAway();
    void destroyedRootIsNoRoot();
    void destroyedSecondRootIsPassedOver();

protected:
    void SetUp() override;
    void TearDown() override;

private:
    template <class T>
    T* Add(const char* name);

    std::unique_ptr<QWidget> m_target;
    QWidget* m_form = nullptr;
    QGroupBox* m_group = nullptr;
};

namespace {

QString Name(const char* name)
{
    return QLatin1String(name);
}

} // namespace

void TestQtUiLoader::SetUp()
{
    m_target = std::make_unique<QWidget>();
    m_target->setObjectName(Name("Target"));
    auto* outside = new QLabel(m_target.get());
    outside->setObjectName(Name("qtOutside"));
    m_form = new QWidget(m_target.get());
    m_form->setObjectName(Name("Form"));
    m_group = new QGroupBox(m_form);
    m_group->setObjectName(Name("qtGroup"));
}

void TestQtUiLoader::TearDown()
{
    m_target.reset();
}

template <class T>
T* TestQtUiLoader::Add(const char* name)
{
    auto* widget = new T(m_group);
    widget->setObjectName(Name(name));
    return widget;
}

void TestQtUiLoader::withoutRootEveryNameIsRecorded_data()
{
    QTest::addColumn<bool>("setNullRoot");
    QTest::newRow("never set") << false;
    QTest::newRow("null") << true;
}

void TestQtUiLoader::withoutRootEveryNameIsRecorded()
{
    QFETCH(bool, setNullRoot);
    CQtUiLoader loader;
    if (setNullRoot) {
        loader.SetRoot(nullptr, m_form);
    }
    QVERIFY(!loader.HasRoot());
    QVERIFY(!loader.SecondRoot());
    QVERIFY(!loader.Find<QGroupBox>(Name("qtGroup")));
    QVERIFY(!loader.Find<QWidget>(Name("Form")));
    QCOMPARE(loader.UnresolvedNames(), QStringList({Name("qtGroup"), Name("Form")}));
}

void TestQtUiLoader::rootItselfIsFound()
{
    CQtUiLoader loader(m_form);
    QVERIFY(loader.HasRoot());
    QCOMPARE(loader.Root(), m_form);
    QCOMPARE(loader.Find<QWidget>(Name("Form")), m_form);
    QVERIFY(loader.UnresolvedNames().isEmpty());
}

void TestQtUiLoader::rootOfAnotherTypeIsNullAndNotRecorded()
{
    CQtUiLoader loader(m_form, m_target.get());
    QVERIFY(!loader.Find<QGroupBox>(Name("Form")));
    QVERIFY(loader.UnresolvedNames().isEmpty());
}

void TestQtUiLoader::rootHidesADescendantOfTheSameName()
{
    Add<QLabel>("Form");
    CQtUiLoader loader(m_form);
    QVERIFY(!loader.Find<QLabel>(Name("Form")));
    QVERIFY(loader.UnresolvedNames().isEmpty());
}

void TestQtUiLoader::everyKindIsFoundBelowTheRoot()
{
    auto* checkBox = Add<QCheckBox>("qtCheckBox");
    auto* label = Add<QLabel>("qtLabel");
    auto* button = Add<QPushButton>("qtButton");
    auto* plain = Add<QWidget>("qtPlain");
    auto* outer = Add<QVBoxLayout>("verticalLayout");
    auto* inner = new QHBoxLayout;
    inner->setObjectName(Name("horizontalLayout"));
    outer->addLayout(inner);

    CQtUiLoader loader(m_form);
    QCOMPARE(loader.Find<QGroupBox>(Name("qtGroup")), m_group);
    QCOMPARE(loader.Find<QCheckBox>(Name("qtCheckBox")), checkBox);
    QCOMPARE(loader.Find<QLabel>(Name("qtLabel")), label);
    QCOMPARE(loader.Find<QPushButton>(Name("qtButton")), button);
    QCOMPARE(loader.Find<QWidget>(Name("qtPlain")), plain);
    QCOMPARE(loader.Find<QVBoxLayout>(Name("verticalLayout")), outer);
    QCOMPARE(loader.Find<QHBoxLayout>(Name("horizontalLayout")), inner);
    QVERIFY(loader.UnresolvedNames().isEmpty());
}

void TestQtUiLoader::descendantOfAnotherTypeIsRecorded()
{
    Add<QLabel>("qtLabel");
    CQtUiLoader loader(m_form);
    QVERIFY(!loader.Find<QCheckBox>(Name("qtLabel")));
    QCOMPARE(loader.UnresolvedNames(), QStringList({Name("qtLabel")}));
}

void TestQtUiLoader::typeDecidesBetweenEqualNames()
{
    auto* label = Add<QLabel>("qtTwice");
    auto* button = Add<QPushButton>("qtTwice");
    CQtUiLoader loader(m_form);
    QCOMPARE(loader.Find<QPushButton>(Name("qtTwice")), button);
    QCOMPARE(loader.Find<QLabel>(Name("qtTwice")), label);
}

void TestQtUiLoader::secondRootIsSearchedAfterTheRoot()
{
    CQtUiLoader loader(m_form, m_target.get());
    QCOMPARE(loader.SecondRoot(), m_target.get());
    auto* outside = loader.Find<QLabel>(Name("qtOutside"));
    QVERIFY(outside);
    QCOMPARE(outside->parentWidget(), m_target.get());
    QVERIFY(loader.UnresolvedNames().isEmpty());

    CQtUiLoader withoutSecondRoot(m_form);
    QVERIFY(!withoutSecondRoot.Find<QLabel>(Name("qtOutside")));
    QCOMPARE(withoutSecondRoot.UnresolvedNames(), QStringList({Name("qtOutside")}));
}

void TestQtUiLoader::rootGoesBeforeTheSecondRoot()
{
    auto* inForm = Add<QLabel>("qtOutside");
    CQtUiLoader loader(m_form, m_target.get());
    QCOMPARE(loader.Find<QLabel>(Name("qtOutside")), inForm);
}

void TestQtUiLoader::secondRootItselfIsNotFound()
{
    CQtUiLoader loader(m_form, m_target.get());
    QVERIFY(!loader.Find<QWidget>(Name("Target")));
    QCOMPARE(loader.UnresolvedNames(), QStringList({Name("Target")}));
}

void TestQtUiLoader::missingNamesAreRecordedInOrder()
{
    CQtUiLoader loader(m_form, m_target.get());
    for (const char* name : {"qtB", "qtA", "qtB"}) {
        QVERIFY(!loader.Find<QWidget>(Name(name)));
    }
    QCOMPARE(loader.UnresolvedNames(), QStringList({Name("qtB"), Name("qtA"), Name("qtB")}));
}

void TestQtUiLoader::formWithoutGroupBoxLeavesItNull()
{
    CQtUiLoader loader(m_form);
    QVERIFY(!loader.Find<QGroupBox>(Name("qtSectionGroupBox")));
    QCOMPARE(loader.UnresolvedNames(), QStringList({Name("qtSectionGroupBox")}));
}

void TestQtUiLoader::customWidgetIsFoundByItsPlainWidget()
{
    auto* spinBox = Add<QSpinBox>("qtSpinBox");
    CQtUiLoader loader(m_form);
    QCOMPARE(loader.FindCustom<QSpinBox>(Name("qtSpinBox")), spinBox);
    QVERIFY(loader.UnresolvedNames().isEmpty());
    QVERIFY(!loader.FindCustom<QSpinBox>(Name("qtMissing")));
    QCOMPARE(loader.UnresolvedNames(), QStringList({Name("qtMissing")}));
}

void TestQtUiLoader::customWidgetOfAnotherClassIsNullAndNotRecorded()
{
    Add<QLabel>("qtLabel");
    CQtUiLoader loader(m_form);
    QVERIFY(!loader.FindCustom<QSpinBox>(Name("qtLabel")));
    QVERIFY(loader.UnresolvedNames().isEmpty());
}

void TestQtUiLoader::rootsCanBeTakenAway()
{
    CQtUiLoader loader(m_form, m_target.get());
    loader.SetRoot(nullptr);
    QVERIFY(!loader.HasRoot());
    QVERIFY(!loader.Root());
    QVERIFY(!loader.SecondRoot());
    loader.SetRoot(m_group);
    QCOMPARE(loader.Root(), static_cast<QWidget*>(m_group));
    QVERIFY(!loader.Find<QWidget>(Name("Form")));
    QCOMPARE(loader.UnresolvedNames(), QStringList({Name("Form")}));
}

void TestQtUiLoader::destroyedRootIsNoRoot()
{
    CQtUiLoader loader(m_form, m_target.get());
    delete m_form;
    QVERIFY(!loader.Root());
    QVERIFY(!loader.Find<QLabel>(Name("qtOutside")));
    QCOMPARE(loader.UnresolvedNames(), QStringList({Name("qtOutside")}));
}

void TestQtUiLoader::destroyedSecondRootIsPassedOver()
{
    m_form->setParent(nullptr);
    const std::unique_ptr<QWidget> form(m_form);
    CQtUiLoader loader(m_form, m_target.get());
    m_target.reset();
    QCOMPARE(loader.Find<QGroupBox>(Name("qtGroup")), m_group);
    QVERIFY(!loader.Find<QLabel>(Name("qtOutside")));
    QCOMPARE(loader.UnresolvedNames(), QStringList({Name("qtOutside")}));
}

SOFTCLOTH_TEST(TestQtUiLoader)

#include "tst_qt_ui_loader.moc"
