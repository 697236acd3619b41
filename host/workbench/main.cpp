#include "host/import/Units.h"
#include "host/services/ImageEditor.h"
#include "host/workbench/LanguageSwitch.h"
#include "host/workbench/Languages.h"
#include "host/workbench/MainWindow.h"
#include "host/workbench/WorkbenchStyle.h"
#include "host/workbench/tour/Tour.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QTextStream>

#include <cstdlib>
#include <memory>

namespace {

struct Options
{
    QString model;
    QString plugin;
    QString tourFolder;
    QString unit;        ///< Of a model whose file does not name one; empty for asking.
    QString imageEditor; ///< Null when it is not given.
    MV::ECompatibleApp app = MV::ECompatibleApp::FamilyA;
};

/// Qt takes "--plugin" for an option of its own and away from us, so it goes by another name from here on.
void RenamePluginOption(int argc, char** argv)
{
    static char renamed[] = "--panel-plugin";
    for (int i = 1; i < argc; ++i) {
        if (qstrcmp(argv[i], "--plugin") == 0) {
            argv[i] = renamed;
        }
    }
}

QString BesideProgram(const QString& relative)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1Char('/') + relative);
}

/// The folder of the plug-in library: where it is installed or, in a build folder, where it is made.
QString PluginFolder()
{
    const QString installed = BesideProgram(QStringLiteral(SOFTCLOTH_INSTALLED_PLUGIN_DIR));
    return QDir(installed).exists() ? installed : BesideProgram(QStringLiteral("../lib"));
}

/// The folder of the demo, the presets and the workbench's languages, likewise.
QString DataFolder()
{
    const QString installed = BesideProgram(QStringLiteral(SOFTCLOTH_INSTALLED_DATA_DIR));
    return QDir(installed).exists() ? installed : BesideProgram(QStringLiteral("../data"));
}

QCommandLineOption PluginOption()
{
    return {QStringList{QStringLiteral("plugin"), QStringLiteral("panel-plugin")},
            QCoreApplication::translate("main", "The plug-in library to load."), QStringLiteral("path"),
            PluginFolder() + QStringLiteral("/" SOFTCLOTH_PLUGIN_NAME)};
}

QCommandLineOption TourOption()
{
    return {QStringLiteral("tour"),
            QCoreApplication::translate("main", "Run the main job unattended and write pictures into this folder."),
            QStringLiteral("folder")};
}

QCommandLineOption LanguageOption()
{
    return {QStringLiteral("language"),
            QCoreApplication::translate("main", "Language in place of the one chosen, for example de or zh_TW."),
            QStringLiteral("code")};
}

/// Ends the program with a message about its command line.
[[noreturn]] void Refuse(const QString& sentence)
{
    QTextStream(stderr) << sentence << Qt::endl;
    std::exit(2);
}

/// The languages of the plug-in and the workbench, with the right one chosen. This comes before the other options are
/// read, because their descriptions are texts, too. Ends the program with a message where there is no such language.
std::unique_ptr<Host::Languages> ReadLanguage(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.addOptions({PluginOption(), TourOption(), LanguageOption()});
    // What it does not know is left to the parser of all options.
    parser.parse(arguments);
    const bool isTour = parser.isSet(QStringLiteral("tour"));
    const QString code = parser.isSet(QStringLiteral("language")) ? parser.value(QStringLiteral("language"))
                         : isTour                                 ? QString()
                                                                  : Host::Languages::Remembered();
    auto languages =
        std::make_unique<Host::Languages>(QStringList{QFileInfo(parser.value(QStringLiteral("plugin"))).absolutePath(),
                                                      DataFolder() + QStringLiteral("/translations")});
    if (languages->Choose(code)) {
        return languages;
    }
    if (parser.isSet(QStringLiteral("language"))) {
        Refuse(QCoreApplication::translate("main", "There is no language \"%1\", but these: %2.")
                   .arg(code, languages->Codes().join(QLatin1String(", "))));
    }
    // One that was there when it was chosen.
    languages->Choose({});
    return languages;
}

/// Reads the command line; ends the program with a message when it is wrong.
Options ReadOptions(const QApplication& application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "A stand-in host for the soft cloth physics panel."));
    parser.addHelpOption();
    parser.addPositionalArgument(
        QStringLiteral("MODEL"),
        QCoreApplication::translate("main", "Model or scene file; the demo character without."),
        QStringLiteral("[MODEL]"));
    const QCommandLineOption appKind(QStringLiteral("app-kind"),
                                     QCoreApplication::translate("main", "Application family: a, b or none."),
                                     QStringLiteral("kind"), QStringLiteral("a"));
    const QCommandLineOption plugin = PluginOption();
    const QCommandLineOption tour = TourOption();
    const QCommandLineOption imageEditor(
        QStringLiteral("image-editor"),
        QCoreApplication::translate("main", "Program, with its options, that opens images in place of the one chosen."),
        QStringLiteral("command"));
    QStringList unitKeys;
    for (const Host::LengthUnit& unit : Host::LengthUnits()) {
        unitKeys.append(unit.key);
    }
    const QCommandLineOption unit(
        QStringLiteral("unit"),
        QCoreApplication::translate("main", "Unit of a model whose file does not name one, in place of asking: %1.")
            .arg(unitKeys.join(QLatin1String(", "))),
        QStringLiteral("unit"));
    parser.addOptions({appKind, plugin, tour, imageEditor, unit, LanguageOption()});
    parser.process(application);

    const QHash<QString, MV::ECompatibleApp> kinds{{QStringLiteral("a"), MV::ECompatibleApp::FamilyA},
                                                   {QStringLiteral("b"), MV::ECompatibleApp::FamilyB},
                                                   {QStringLiteral("none"), MV::ECompatibleApp::None}};
    if (!kinds.contains(parser.value(appKind))) {
        Refuse(QCoreApplication::translate("main", "There is no application family \"%1\", but these: a, b, none.")
                   .arg(parser.value(appKind)));
    }
    if (parser.isSet(unit) && !unitKeys.contains(parser.value(unit))) {
        Refuse(QCoreApplication::translate("main", "There is no unit \"%1\", but these: %2.")
                   .arg(parser.value(unit), unitKeys.join(QLatin1String(", "))));
    }
    const QStringList models = parser.positionalArguments();
    if (models.size() > 1) {
        Refuse(QCoreApplication::translate("main", "Only one model can be opened; \"%1\" is one too many.")
                   .arg(models.at(1)));
    }
    Options options;
    options.model = parser.positionalArguments().value(0, DataFolder() + QStringLiteral("/demo/" SOFTCLOTH_DEMO));
    // The demo character is in centimetres.
    options.unit = models.isEmpty() ? QStringLiteral("cm") : parser.value(unit);
    options.plugin = parser.value(plugin);
    options.tourFolder = parser.value(tour);
    options.imageEditor = parser.isSet(imageEditor) ? parser.value(imageEditor) : QString();
    options.app = kinds.value(parser.value(appKind));
    return options;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    RenamePluginOption(argc, argv);
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("SoftClothPanel"));
    QCoreApplication::setApplicationName(QStringLiteral("softcloth-workbench"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Soft Cloth Workbench"));
    Host::ApplyWorkbenchStyle(application);
    const std::unique_ptr<Host::Languages> languages = ReadLanguage(QCoreApplication::arguments());
    const Options options = ReadOptions(application);
    const bool isTour = !options.tourFolder.isEmpty();

    Host::LanguageSwitch workbench(*languages, std::make_unique<Host::MainWindow>());
    Host::MainWindow& window = workbench.Window();
    if (isTour) {
        window.SetUnattended();
    } else {
        window.RestoreSettings();
    }
    if (!options.imageEditor.isNull()) {
        window.Application().Editor().SetProgram(options.imageEditor);
    }
    window.Application().SetDataFolder(DataFolder());
    window.show();
    bool ready = window.StartPlugin(options.plugin, options.app);
    const bool isScene = options.model.endsWith(QLatin1String(".clothscene"), Qt::CaseInsensitive);
    ready = (isScene ? window.OpenScene(options.model)
                     : window.ImportModel(options.model, Host::UnitCalled(options.unit))) &&
            ready;
    if (isTour) {
        return ready && Host::RunTour(window, options.tourFolder) ? 0 : 1;
    }
    return QApplication::exec();
}
