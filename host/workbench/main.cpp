#include "host/services/ImageEditor.h"
#include "host/workbench/MainWindow.h"
#include "host/workbench/WorkbenchStyle.h"
#include "host/workbench/tour/Tour.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QHash>

namespace {

struct Options
{
    QString model;
    QString plugin;
    QString tourFolder;
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
    const QCommandLineOption plugin(QStringList{QStringLiteral("plugin"), QStringLiteral("panel-plugin")},
                                    QCoreApplication::translate("main", "The plug-in library to load."),
                                    QStringLiteral("path"),
                                    BesideProgram(QStringLiteral("../lib/" SOFTCLOTH_PLUGIN_NAME)));
    const QCommandLineOption tour(
        QStringLiteral("tour"),
        QCoreApplication::translate("main", "Run the main job unattended and write pictures into this folder."),
        QStringLiteral("folder"));
    const QCommandLineOption imageEditor(
        QStringLiteral("image-editor"),
        QCoreApplication::translate("main", "Program, with its options, that opens images in place of the one chosen."),
        QStringLiteral("command"));
    parser.addOptions({appKind, plugin, tour, imageEditor});
    parser.process(application);

    const QHash<QString, MV::ECompatibleApp> kinds{{QStringLiteral("a"), MV::ECompatibleApp::FamilyA},
                                                   {QStringLiteral("b"), MV::ECompatibleApp::FamilyB},
                                                   {QStringLiteral("none"), MV::ECompatibleApp::None}};
    if (!kinds.contains(parser.value(appKind)) || parser.positionalArguments().size() > 1) {
        parser.showHelp(2);
    }
    Options options;
    options.model =
        parser.positionalArguments().value(0, BesideProgram(QStringLiteral("../data/demo/" SOFTCLOTH_DEMO)));
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
    QGuiApplication::setApplicationDisplayName(QCoreApplication::translate("main", "Soft Cloth Workbench"));
    Host::ApplyWorkbenchStyle(application);
    const Options options = ReadOptions(application);
    const bool isTour = !options.tourFolder.isEmpty();

    Host::MainWindow window;
    if (isTour) {
        window.SetUnattended();
    } else {
        window.RestoreImageEditor();
    }
    if (!options.imageEditor.isNull()) {
        window.Application().Editor().SetProgram(options.imageEditor);
    }
    window.Application().SetDataFolder(BesideProgram(QStringLiteral("../data")));
    window.show();
    bool ready = window.StartPlugin(options.plugin, options.app);
    const bool isScene = options.model.endsWith(QLatin1String(".clothscene"), Qt::CaseInsensitive);
    ready = (isScene ? window.OpenScene(options.model) : window.ImportModel(options.model)) && ready;
    if (isTour) {
        return ready && Host::RunTour(window, options.tourFolder) ? 0 : 1;
    }
    return QApplication::exec();
}
