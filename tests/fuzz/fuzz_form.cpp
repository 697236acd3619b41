// Forms, through both readers: what both build without a complaint must be the same.
#include "tests/fuzz/Fuzz.h"

#include "sdk/MVPluginQt/FormReader.h"
#include "sdk/MVPluginQt/UiToolsReader.h"
#include "tests/unit/sdk/FormDescription.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QWidget>

#include <memory>

namespace {

using Reader = QWidget* (*)(QIODevice&, const QDir&, QWidget*, QString&);

/// \param isClean  false when the reader complained
std::unique_ptr<QWidget> Build(Reader read, const QByteArray& form, bool& isClean)
{
    QBuffer device;
    device.setData(form);
    device.open(QIODevice::ReadOnly);
    QString error;
    const int before = Fuzz::WarningCount();
    std::unique_ptr<QWidget> built(read(device, QDir(Fuzz::Folder()), nullptr, error));
    isClean = Fuzz::WarningCount() == before;
    return built;
}

QByteArray Form(const QByteArray& content)
{
    return "<ui version=\"4.0\"><class>Form</class><widget class=\"QWidget\" name=\"Form\">" + content +
           "</widget></ui>";
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    Fuzz::StartApplication(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray form = Fuzz::Bytes(data, size);
    bool isClean = false;
    const auto ours = Build(MV::Internal::ReadForm, form, isClean);
    if (!ours || !isClean) {
        return 0;
    }
    const auto theirs = Build(MV::Internal::ReadFormWithUiTools, form, isClean);
    if (theirs && isClean && FormDescription(*ours).tree != FormDescription(*theirs).tree) {
        Fuzz::Fail(FormDescription(*ours).tree.join(QLatin1Char('\n')) + QLatin1String("\n--- is not ---\n") +
                   FormDescription(*theirs).tree.join(QLatin1Char('\n')));
    }
    return 0;
}

QVector<QByteArray> FuzzSeeds()
{
    QVector<QByteArray> seeds{
        Form("<layout class=\"QVBoxLayout\" name=\"l\"><item><widget class=\"QLabel\" name=\"a\"><property "
             "name=\"text\"><string>Hello</string></property></widget></item><item><spacer "
             "name=\"s\"/></item></layout>"),
        Form("<layout class=\"QGridLayout\" name=\"g\"><item row=\"0\" column=\"1\" rowspan=\"2\"><widget "
             "class=\"QPushButton\" name=\"b\"/></item></layout>"),
        Form("<widget class=\"QTabWidget\" name=\"t\"><widget class=\"QWidget\" name=\"p\"><attribute "
             "name=\"title\"><string>One</string></attribute></widget></widget>"),
        Form("<widget class=\"QListWidget\" name=\"w\"><item><property name=\"text\"><string>Item</string></property>"
             "</item></widget>"),
        Form(
            "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>10</width><height>20</height></rect></property>"),
        "<ui version=\"4.0\">",
        ""};
    const QDir forms(QStringLiteral(FORMS_FOLDER));
    const QStringList names = forms.entryList({QStringLiteral("*.ui")}, QDir::Files, QDir::Name);
    for (const QString& name : names) {
        QFile file(forms.filePath(name));
        if (file.open(QIODevice::ReadOnly)) {
            seeds.append(file.readAll());
        }
    }
    return seeds;
}
