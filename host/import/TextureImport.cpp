#include "host/import/TextureImport.h"

#include "host/scene/Limits.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QUrl>

#include <assimp/material.h>
#include <assimp/scene.h>

#include <array>

namespace Host {

namespace {

bool IsAbsolute(const QString& path)
{
    const bool hasDrive =
        path.size() > 2 && path.at(0).isLetter() && path.at(1) == QLatin1Char(':') && path.at(2) == QLatin1Char('/');
    return hasDrive || QDir::isAbsolutePath(path);
}

QString AbsoluteIn(const QDir& folder, const QString& path)
{
    return QDir::cleanPath(IsAbsolute(path) ? path : folder.absoluteFilePath(path));
}

/// \p path itself, or a neighbour of it whose name differs in letter case only; empty when there is neither.
QString ExistingFile(const QString& path)
{
    const QFileInfo info(path);
    if (info.isFile()) {
        return path;
    }
    const QDir folder = info.dir();
    const QStringList neighbours = folder.entryList(QDir::Files);
    for (const QString& neighbour : neighbours) {
        if (neighbour.compare(info.fileName(), Qt::CaseInsensitive) == 0) {
            return folder.absoluteFilePath(neighbour);
        }
    }
    return {};
}

QByteArray EncodeTexels(const aiTexture& texture)
{
    if (texture.mWidth > Limits::imageSide || texture.mHeight > Limits::imageSide ||
        qint64(texture.mWidth) * texture.mHeight > Limits::imagePixels) {
        return {};
    }
    QImage image(static_cast<int>(texture.mWidth), static_cast<int>(texture.mHeight), QImage::Format_ARGB32);
    const aiTexel* texel = texture.pcData;
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x, ++texel) {
            line[x] = qRgba(texel->r, texel->g, texel->b, texel->a);
        }
    }
    QByteArray encoded;
    QBuffer buffer(&encoded);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return encoded;
}

/// The encoded image of an embedded texture. One that the file holds encoded has height 0 and its size as the width.
QByteArray EncodedImage(const aiTexture& texture)
{
    if (texture.mHeight != 0) {
        return EncodeTexels(texture);
    }
    return {reinterpret_cast<const char*>(texture.pcData), static_cast<int>(texture.mWidth)};
}

/// The first texture that \p material has among \p types; empty for none.
template <std::size_t count>
Texture ImportTexture(const aiMaterial& material, const aiScene& scene, const QDir& folder,
                      const std::array<aiTextureType, count>& types)
{
    for (const aiTextureType type : types) {
        aiString name;
        if (material.GetTexture(type, 0, &name) != aiReturn_SUCCESS || name.length == 0) {
            continue;
        }
        if (const aiTexture* embedded = scene.GetEmbeddedTexture(name.C_Str())) {
            return {{}, EncodedImage(*embedded)};
        }
        return {ResolveTexturePath(QString::fromUtf8(name.C_Str()), folder), {}};
    }
    return {};
}

} // namespace

QString ResolveTexturePath(const QString& asked, const QDir& folder)
{
    QString path = QDir::fromNativeSeparators(asked).replace(QLatin1Char('\\'), QLatin1Char('/')).trimmed();
    if (path.startsWith(QLatin1String("file://"), Qt::CaseInsensitive)) {
        path = QUrl(path).path(QUrl::FullyDecoded);
    }
    const QString decoded = QUrl::fromPercentEncoding(path.toUtf8());
    for (const QString& spelling : {path, decoded}) {
        const QString fileName = spelling.mid(spelling.lastIndexOf(QLatin1Char('/')) + 1);
        for (const QString& place : {AbsoluteIn(folder, spelling), folder.absoluteFilePath(fileName)}) {
            const QString file = ExistingFile(place);
            if (!file.isEmpty()) {
                return file;
            }
        }
    }
    return AbsoluteIn(folder, path);
}

std::map<MV::ETextureChannel, Texture> ImportTextures(const aiMaterial& material, const aiScene& scene,
                                                      const QDir& folder)
{
    std::map<MV::ETextureChannel, Texture> textures{
        {MV::ETextureChannel::Diffuse,
         ImportTexture(material, scene, folder, std::array{aiTextureType_DIFFUSE, aiTextureType_BASE_COLOR})},
        {MV::ETextureChannel::Opacity, ImportTexture(material, scene, folder, std::array{aiTextureType_OPACITY})},
    };
    for (auto it = textures.begin(); it != textures.end();) {
        const bool empty = it->second.filePath.isEmpty() && it->second.embedded.isEmpty();
        it = empty ? textures.erase(it) : std::next(it);
    }
    return textures;
}

} // namespace Host
