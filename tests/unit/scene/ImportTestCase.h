#pragma once

#include "host/import/ModelImport.h"

#include "tests/support/TestCase.h"

#include <QTemporaryDir>

#include <memory>

/// Base of the tests that import models: from the sample models or written on the spot into a folder of each test.
class ImportTestCase : public TestCase
{
    Q_OBJECT

protected:
    void SetUp() override;

    QString PathOf(const QString& name) const { return m_folder->filePath(name); }

    /// Imports an OBJ file with the text \p obj, beside which "m.mtl" has the text \p mtl.
    Host::ImportResult ImportText(const QByteArray& obj, const QByteArray& mtl = {}) const;

    static QString SampleModel(const QString& name);

    /// Imports one of the sample models; it has to be there and sound.
    static Host::Object Import(const char* name);

    /// The lines of an OBJ file with the corners of a square, and as many texture coordinates.
    static const QByteArray squareVertices;

    /// An OBJ file with one square that has the material "Cloth" from "m.mtl".
    static QByteArray SquareObj();

    std::unique_ptr<QTemporaryDir> m_folder;
};
