#pragma once

#include "tests/support/Children.h"
#include "tests/unit/sections/SectionFixture.h"

#include <MVPluginQt/Result.h>

#include <QGroupBox>
#include <QPushButton>
#include <QString>
#include <QTest>
#include <QWidget>

#include <functional>

class CUiComponent;

/// Checks that hold for every section. Each fails the running test.
namespace FormChecks {

/// The component asks for exactly \p names, blank-separated, in this order, and finds them all in \p form.
void Component(CUiComponent& component, QWidget& form, const char* names);

/// Columns "className" and "names", and one row of them.
void AddClassColumns();
void AddClassRow(const char* className, const char* names);
/// The named objects of \p section are of exactly that class.
void Classes(const QWidget& section);

/// Columns "box", "minimum", "maximum", "step" and "suffix"; for a box they are its properties.
void AddRangeColumns();
void Range(const QWidget& section);

/// There are \p count boxes, and each says what it does: in a tool tip of two sentences, in an accessible name, and
/// in a label that has it as buddy. No box reports its value while the user types.
void Help(const QWidget& section, int count);

/// The layout file has been applied: it alone puts the numbers of the plain boxes to the right, and gives \p layout its
/// \p spacing.
void LayoutFile(const QWidget& section, const char* layout, int spacing);

/// What all boxes of \p section show.
QVariantList ShownByAll(const QWidget& section);

/// Tab leads from the expand button through the named widgets, in this order.
void TabOrder(QWidget& section, const char* names);

/// Rows of a state with nothing to show.
void AddNothingShownRows();
/// In such a state \p refresh returns 1, disables the group box, leaves \p box alone and asks no more than it must.
void NothingShown(SectionFixture& fixture, const QWidget& section, const std::function<BF::Result()>& refresh,
                  const char* box);

/// After a refresh and a \p change of what the host holds, while the operation named by the column "operation" fails,
/// \p refresh returns the failure and changes nothing. The change must be one that every box would show.
void FailedRead(SectionFixture& fixture, const QWidget& section, const std::function<BF::Result()>& refresh,
                const std::function<void()>& change);

/// A section that is ready is on the panel's page at \p order, hidden and unfolded; its button folds it.
template <class Section>
void Place(int order)
{
    SectionFixture fixture;
    Section& section = fixture.Make<Section>();
    QCOMPARE(fixture.initialised, BF::Results::Success);
    QCOMPARE(section.GetSectionPage(), 4);
    QCOMPARE(section.GetSectionOrder(), order);
    QCOMPARE(section.GetSectionApplications(), 7);
    QCOMPARE(section.GetSectionWidget(), &section);
    QVERIFY(section.AbleToShowSection());
    QVERIFY(section.isHidden());
    QVERIFY(section.GetSectionExpandState());
    QTest::mouseClick(Child<QPushButton>(&section, "qtExpandPushButton"), Qt::LeftButton);
    QVERIFY(!section.GetSectionExpandState());
    QVERIFY(Child<QGroupBox>(&section, "qtSectionGroupBox")->isHidden());
}

/// Without a host a section refuses to start, and to refresh, and makes no widgets.
template <class Section>
void WithoutHost()
{
    SectionFixture fixture;
    Section section(&fixture.plugin);
    QCOMPARE(section.Init(QString(), QString(), nullptr), BF::Results::InvalidArgument);
    QVERIFY(section.children().isEmpty());
    QCOMPARE(section.UpdateUi(), BF::Results::InvalidArgument);
    QCOMPARE(fixture.TakeCalls(), QStringList());
}

/// Without its form, which a warning reports, a section does not start and is not to be shown.
template <class Section>
void MissingForm()
{
    Host::HostApplication host;
    MV::CPhysicsSoftClothPlugin plugin;
    Section section(&plugin);
    QCOMPARE(section.Init(QString(), QString(), &host), BF::Results::ResourceFailure);
    QVERIFY(!section.AbleToShowSection());
    QVERIFY(section.children().isEmpty());
}

} // namespace FormChecks
