#include "tests/unit/scene/ImportTestCase.h"

#include "tests/support/Files.h"

#include <QFileInfo>

using Host::ImportResult;

const QByteArray ImportTestCase::squareVertices =
    "v 0 0 0\nv 1 0 0\nv 1 1 0\nv 0 1 0\nvt 0 0\nvt 1 0\nvt 1 1\nvt 0 1\n";

void ImportTestCase::SetUp()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

ImportResult ImportTestCase::ImportText(const QByteArray& obj, const QByteArray& mtl) const
{
    Files::Write(PathOf(QStringLiteral("m.mtl")), mtl);
    return Host::ImportModel(Files::Write(PathOf(QStringLiteral("m.obj")), obj));
}

QString ImportTestCase::SampleModel(const QString& name)
{
    return QFileInfo(QStringLiteral(SOFTCLOTH_TEST_MODELS "/") + name).absoluteFilePath();
}

Host::Object ImportTestCase::Import(const char* name)
{
    const ImportResult result = Host::ImportModel(SampleModel(QString::fromLatin1(name)));
    if (!result.object) {
        qFatal("%s: %s", name, qPrintable(result.error));
    }
    return *result.object;
}

QByteArray ImportTestCase::SquareObj()
{
    return "mtllib m.mtl\n" + squareVertices + "usemtl Cloth\nf 1/1 2/2 3/3\nf 1/1 3/3 4/4\n";
}
