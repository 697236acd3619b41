// Layout files, applied to a form with every kind of property.
#include "tests/fuzz/Fuzz.h"

#include "sdk/MVPluginQt/LayoutIni.h"

#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    Fuzz::StartApplication(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    QWidget form;
    form.setObjectName(QStringLiteral("Form"));
    auto* layout = new QVBoxLayout(&form);
    layout->setObjectName(QStringLiteral("layout"));
    const auto add = [layout](QWidget* widget, const char* name) {
        widget->setObjectName(QLatin1String(name));
        layout->addWidget(widget);
    };
    add(new QDoubleSpinBox, "box");
    add(new QLabel, "label");
    add(new QPushButton, "button");
    add(new QListWidget, "list");
    add(new QGroupBox, "group");
    MV::Internal::ApplyLayoutIni(Fuzz::WriteFile("layout.ini", Fuzz::Bytes(data, size)), &form);
    return 0;
}

QVector<QByteArray> FuzzSeeds()
{
    return {"[Form]\nbox/minimumSize=96 0\nbox/alignment=AlignRight|AlignVCenter\nbox/maximum=12.5\n",
            "[Form]\nlayout/spacing=8\nlabel/text=Hello\nbutton/maximumSize=@Size(96 24)\nlist/enabled=false\n",
            "[Other]\nbox/value=1\n[Form]\nnone/value=1\nbox/none=1\nbox/value=text\ngroup/sizePolicy=1\n",
            "[Form]\nForm/geometry=@Rect(0 0 1 1)\nbutton/icon=x\nlist/iconSize=1 2 3\nlabel/font=Sans,9\n"};
}
