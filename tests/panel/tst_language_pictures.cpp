#include "host/workbench/Languages.h"
#include "host/workbench/MainWindow.h"
#include "tests/support/Children.h"
#include "tests/support/PanelFixture.h"
#include "tests/support/SampleModels.h"
#include "tests/support/ShownTexts.h"
#include "tests/support/TestCase.h"

#include <QDir>
#include <QGlyphRun>
#include <QGuiApplication>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QTextLayout>
#include <QTimer>

#include <algorithm>
#include <memory>

/// How the panel looks in every language, the made-up one with longer texts included: every text is translated, there
/// are letters for it, and it has room. The pictures are kept, for people to look at.
class TestLanguagePictures : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textsHaveRoom_data();
    void textsHaveRoom();
    void everyTextIsTranslated();
    void nothingOverlapsFromRightToLeft_data();
    void nothingOverlapsFromRightToLeft();
    void endsOfTheSliderStandAtItsEnds_data();
    void endsOfTheSliderStandAtItsEnds();
    void everyTextOfTheWorkbenchIsTranslated();
    void controlsOfTheHostHaveRoom_data();
    void controlsOfTheHostHaveRoom();
};

namespace {

const QStringList forms{QStringLiteral("SoftClothPreset"),      QStringLiteral("SoftClothProperty"),
                        QStringLiteral("SoftClothCollision"),   QStringLiteral("SoftClothWindSetting"),
                        QStringLiteral("SoftClothMaterialDlg"), QStringLiteral("SoftClothMaterialTable")};

QStringList Folders()
{
    return {QStringLiteral(SOFTCLOTH_PANEL_LANGUAGES), QStringLiteral(SOFTCLOTH_DATA_FOLDER "/translations")};
}

/// The panel in a language, with a cloth selected and everything open but the table.
class SpeakingPanel
{
public:
    explicit SpeakingPanel(const QString& language, Qt::LayoutDirection direction = Qt::LeftToRight)
        : m_languages(Folders())
    {
        if (!m_languages.Choose(language)) {
            qFatal("no language %s", qPrintable(language));
        }
        // Each language brings its own.
        QGuiApplication::setLayoutDirection(direction);
        m_panel = std::make_unique<PanelFixture>(MV::ECompatibleApp::FamilyA, QStringLiteral(SOFTCLOTH_DATA_FOLDER));
        m_panel->AddCloth(SampleModels::Hero());
        m_panel->App().SetDialogMode(MV::EDialogMode::WeightMap);
        m_panel->Window().resize(m_panel->Window().minimumSizeHint().expandedTo({376, 900}));
    }

    ~SpeakingPanel() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    Q_DISABLE_COPY_MOVE(SpeakingPanel)

    /// Calls \p look with the widget of a form while it is shown.
    template <class Look>
    void Show(const QString& form, Look look)
    {
        auto* widget = Child<QWidget>(&m_panel->Window(), qPrintable(form));
        if (form != QLatin1String("SoftClothMaterialTable")) {
            QVERIFY(QTest::qWaitForWindowExposed(widget->window()));
            look(widget);
            return;
        }
        bool isShown = false;
        QTimer::singleShot(0, widget, [&] {
            isShown = QTest::qWaitForWindowExposed(widget->window());
            look(widget);
            widget->window()->close();
        });
        Child<QPushButton>(&m_panel->Window(), "qtShowMaterialTableButton")->click();
        QVERIFY(isShown);
    }

private:
    Host::Languages m_languages;
    std::unique_ptr<PanelFixture> m_panel;
};

bool SavePicture(const QWidget* widget, const QString& name)
{
    const QDir folder(QStringLiteral(SOFTCLOTH_PICTURES "/languages"));
    const QImage picture = const_cast<QWidget*>(widget)->grab().toImage();
    return folder.mkpath(QStringLiteral(".")) &&
           picture.save(folder.filePath(QStringLiteral("%1@%2.png").arg(name).arg(picture.devicePixelRatio())));
}

/// The texts of \p form with letters that no font has.
QStringList UnknownLetters(const QWidget* form)
{
    QStringList found;
    const QVector<ShownText> texts = ShownTexts(form);
    for (const ShownText& shown : texts) {
        QTextLayout layout(shown.text.simplified(), shown.widget->font());
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        const QList<QGlyphRun> runs = layout.glyphRuns();
        for (const QGlyphRun& run : runs) {
            if (run.glyphIndexes().contains(0)) {
                found.append(shown.text);
            }
        }
    }
    return found;
}

/// The texts of \p form that the made-up language does not have in its brackets.
QStringList Untranslated(const QWidget* form)
{
    QStringList found;
    const QVector<ShownText> texts = ShownTexts(form);
    for (const ShownText& shown : texts) {
        // Numbers need none, those with hexadecimal digits included.
        bool isNumber = false;
        shown.text.toUInt(&isNumber, 0);
        const bool hasLetters =
            std::any_of(shown.text.begin(), shown.text.end(), [](QChar character) { return character.isLetter(); });
        // Units are as short as in any language.
        const bool isUnit = shown.property == QLatin1String("suffix");
        const bool isTranslated =
            isUnit ? QString::fromLatin1(shown.text.toLatin1()) != shown.text : shown.text.contains(u'⟦');
        // The name of a material is the user's.
        const bool isName = shown.widget->objectName() == QLatin1String("qtEditedMaterialLabel");
        if (hasLetters && !isNumber && !isName && !isTranslated) {
            found.append(shown.widget->objectName() + u'.' + shown.property + u'=' + shown.text);
        }
    }
    return found;
}

} // namespace

void TestLanguagePictures::textsHaveRoom_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("form");
    const QStringList languages = Host::Languages(Folders()).Codes();
    QVERIFY(languages.size() >= 8 && languages.contains(QStringLiteral("pseudo")));
    for (const QString& language : languages) {
        for (const QString& form : forms) {
            QTest::addRow("%s-%s", qPrintable(language), qPrintable(form)) << language << form;
        }
    }
}

void TestLanguagePictures::textsHaveRoom()
{
    QFETCH(const QString, language);
    QFETCH(const QString, form);
    SpeakingPanel panel(language);
    panel.Show(form, [](const QWidget* widget) {
        QVERIFY(SavePicture(widget, QString::fromLatin1(QTest::currentDataTag())));
        QCOMPARE(CutOffTexts(widget).join(u'\n'), QString());
#ifndef Q_OS_WIN
        QCOMPARE(UnknownLetters(widget).join(u'\n'), QString());
#endif
    });
}

void TestLanguagePictures::everyTextIsTranslated()
{
    SpeakingPanel panel(QStringLiteral("pseudo"));
    QStringList untranslated;
    for (const QString& form : forms) {
        panel.Show(form, [&](const QWidget* widget) {
            QVERIFY(ShownTexts(widget).size() > 5);
            untranslated += Untranslated(widget);
        });
    }
    QCOMPARE(untranslated.join(u'\n'), QString());
}

void TestLanguagePictures::nothingOverlapsFromRightToLeft_data()
{
    QTest::addColumn<QString>("form");
    for (const QString& form : forms) {
        QTest::newRow(qPrintable(form)) << form;
    }
}

void TestLanguagePictures::nothingOverlapsFromRightToLeft()
{
    QFETCH(const QString, form);
    SpeakingPanel panel(QStringLiteral("pseudo"), Qt::RightToLeft);
    panel.Show(form, [&form](const QWidget* widget) {
        QVERIFY(widget->isRightToLeft());
        QVERIFY(SavePicture(widget, QLatin1String("from-right-to-left-") + form));
        QCOMPARE(CutOffTexts(widget).join(u'\n'), QString());
        QCOMPARE(OverlappingTexts(widget).join(u'\n'), QString());
    });
}

void TestLanguagePictures::endsOfTheSliderStandAtItsEnds_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::newRow("from left to right") << Qt::LeftToRight;
    QTest::newRow("from right to left") << Qt::RightToLeft;
}

void TestLanguagePictures::endsOfTheSliderStandAtItsEnds()
{
    QFETCH(const Qt::LayoutDirection, direction);
    SpeakingPanel panel(QStringLiteral("en"), direction);
    panel.Show(QStringLiteral("SoftClothWindSetting"), [direction](const QWidget* widget) {
        QCOMPARE(widget->layoutDirection(), direction);
        const auto* smallest = Child<QLabel>(widget, "label_12");
        const auto* largest = Child<QLabel>(widget, "label_13");
        QVERIFY(smallest->geometry().right() < largest->geometry().left());
        QVERIFY(smallest->alignment().testFlag(Qt::AlignAbsolute) && smallest->alignment().testFlag(Qt::AlignLeft));
        QVERIFY(largest->alignment().testFlag(Qt::AlignAbsolute) && largest->alignment().testFlag(Qt::AlignRight));
    });
}

void TestLanguagePictures::everyTextOfTheWorkbenchIsTranslated()
{
    Host::Languages languages(Folders());
    QVERIFY(languages.Choose(QStringLiteral("pseudo")));
    Host::MainWindow window;
    window.OfferLanguages(languages);
    // Languages are called by their own names.
    auto* menu = Child<QMenu>(&window, "languageMenu");
    QCOMPARE(Untranslated(menu).size(), languages.Codes().size() - 1);
    menu->clear();
    QVERIFY(ShownTexts(&window).size() > 80);
    QCOMPARE(Untranslated(&window).join(u'\n'), QString());
}

void TestLanguagePictures::controlsOfTheHostHaveRoom_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = Host::Languages(Folders()).Codes();
    for (const QString& language : languages) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void TestLanguagePictures::controlsOfTheHostHaveRoom()
{
    QFETCH(const QString, language);
    Host::Languages languages(Folders());
    QVERIFY(languages.Choose(language));
    Host::MainWindow window;
    window.SetUnattended();
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto* controls = Child<QScrollArea>(&window, "hostControls")->widget();
    QCOMPARE(CutOffTexts(controls).join(u'\n'), QString());
#ifndef Q_OS_WIN
    QCOMPARE(UnknownLetters(&window).join(u'\n'), QString());
#endif
}

SOFTCLOTH_TEST(TestLanguagePictures)
#include "tst_language_pictures.moc"
