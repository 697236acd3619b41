#pragma once

#include "tests/unit/material/DialogFixture.h"

#include <BFQtCustomWidgetPluginU/QComboSpinBox.h>

#include <QFile>
#include <QTemporaryDir>

/// What the dialog names in every call about the first material's weight image.
inline const QString triple = QStringLiteral(R"("Hero", "Body", "Skin")");

/// An open dialog whose weighting label is current, and a folder with an image file.
struct WeightFixture : DialogFixture
{
    explicit WeightFixture(MV::ECompatibleApp app = MV::ECompatibleApp::FamilyA)
        : DialogFixture(app)
    {
        Open();
        dialog->SelectWeightingLabel();
        image = AddFile(QStringLiteral("gray.png"));
    }

    QString AddFile(const QString& name) const
    {
        const QString path = folder.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)) {
            qFatal("%s cannot be written", qPrintable(path));
        }
        return path;
    }

    void Load(const QString& path)
    {
        host.Answers().AddFile(path);
        Click("qtOpenFilePushButton");
    }

    QComboSpinBox& Brightness() const { return *Find<QComboSpinBox>("qtBrightnessCombospinbox"); }
    QComboSpinBox& Contrast() const { return *Find<QComboSpinBox>("qtContrastCombospinbox"); }

    QString OpenCall(const QString& path) const
    {
        return QStringLiteral("GetOpenImageFileName(\"%1\", 4, 71, 4) -> 0").arg(path);
    }
    QString LoadCall(const QString& path, const QString& result = QStringLiteral("0")) const
    {
        return QStringLiteral("LoadWeightImage(%1, \"%2\", 2) -> %3").arg(triple, path, result);
    }

    QTemporaryDir folder;
    QString image;
};
