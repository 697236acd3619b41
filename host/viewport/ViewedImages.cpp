#include "host/viewport/ViewedImages.h"

#include <QFileInfo>

#include <utility>

namespace Host {

int ViewedImages::Add(const Texture& texture)
{
    if (texture.filePath.isEmpty() && texture.embedded.isEmpty()) {
        return none;
    }
    const bool isFile = !texture.filePath.isEmpty();
    const int known =
        isFile ? m_files.value(texture.filePath, none) : m_embedded.value(texture.embedded.constData(), none);
    if (known != none) {
        return known;
    }
    const int number = Count();
    m_images.push_back({texture, ImageStore::Key(texture), ++m_revision, false});
    if (isFile) {
        m_files.insert(texture.filePath, number);
    } else {
        m_embedded.insert(texture.embedded.constData(), number);
    }
    return number;
}

void ViewedImages::Clear()
{
    m_images.clear();
    m_files.clear();
    m_embedded.clear();
}

void ViewedImages::Refresh()
{
    for (Entry& entry : m_images) {
        ImageStore::Key key(entry.texture);
        if (!(key == entry.key)) {
            entry.key = std::move(key);
            entry.revision = ++m_revision;
        }
    }
}

void ViewedImages::Touch()
{
    for (Entry& entry : m_images) {
        if (!entry.texture.filePath.isEmpty()) {
            entry.revision = ++m_revision;
        }
    }
}

QImage ViewedImages::Get(int image)
{
    Entry& entry = m_images[std::size_t(image)];
    QImage picture = m_store.Get(entry.texture)->image;
    entry.isUnreadable = picture.isNull();
    return picture;
}

QStringList ViewedImages::Unreadable() const
{
    QStringList names;
    for (const Entry& entry : m_images) {
        if (entry.isUnreadable) {
            names.append(QFileInfo(entry.texture.filePath).fileName());
        }
    }
    return names;
}

} // namespace Host
