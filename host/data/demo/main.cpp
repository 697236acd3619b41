#include "host/data/demo/DemoCharacter.h"
#include "host/data/demo/DemoTextures.h"
#include "host/data/demo/ObjWriter.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QString>
#include <QTextStream>

namespace {

bool WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
}

/// Writes the demo models, their textures and weight images into \p folder. \return the path that could not be written,
/// if any
QString WriteDemo(const QDir& folder)
{
    const std::vector<Demo::MaterialLook> looks{{"Body skin", "body-skin.png", {}},
                                                {"Hair", "hair.png", "hair-opacity.png"},
                                                {"Skirt", "skirt.png", {}},
                                                {"Cape", "cape.png", {}}};
    const QByteArray characterLooks = "demo-character.mtl";
    const QByteArray flagLooks = "demo-flag.mtl";
    const std::pair<const char*, QByteArray> texts[] = {
        {"demo-character.obj", Demo::ToObj(Demo::MakeCharacter(), characterLooks)},
        {characterLooks.constData(), Demo::ToMtl(looks)},
        {"demo-flag.obj", Demo::ToObj(Demo::MakeFlag(), flagLooks)},
        {flagLooks.constData(), Demo::ToMtl({{"Flag", "flag.png", {}}})},
    };
    for (const auto& [name, text] : texts) {
        const QString path = folder.filePath(QLatin1String(name));
        if (!WriteFile(path, text)) {
            return path;
        }
    }
    const std::pair<const char*, QImage (*)()> images[] = {
        {"body-skin.png", Demo::PaintSkin},
        {"hair.png", Demo::PaintHair},
        {"hair-opacity.png", Demo::PaintHairOpacity},
        {"skirt.png", Demo::PaintSkirt},
        {"cape.png", Demo::PaintCape},
        {"flag.png", Demo::PaintFlag},
        {"weights-hanging.png", Demo::PaintHangingWeights},
        {"weights-flag.png", Demo::PaintFlagWeights},
        {"weights-black.png", Demo::PaintNoWeights},
    };
    for (const auto& [name, paint] : images) {
        const QString path = folder.filePath(QLatin1String(name));
        if (!paint().save(path, "PNG")) {
            return path;
        }
    }
    return {};
}

} // namespace

int main(int argc, char* argv[])
{
    QTextStream err(stderr);
    if (argc != 2) {
        err << QStringLiteral("usage: softcloth-make-demo <folder>\n");
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    if (!folder.mkpath(QStringLiteral("."))) {
        err << QStringLiteral("cannot make the folder %1\n").arg(folder.path());
        return 1;
    }
    const QString failed = WriteDemo(folder);
    if (!failed.isEmpty()) {
        err << QStringLiteral("cannot write %1\n").arg(failed);
        return 1;
    }
    return 0;
}
