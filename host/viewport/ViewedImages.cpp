#include "host/viewport/ViewedImages.h"

#include <algorithm>

namespace Host {

int ViewedImages::Add(const Texture& texture)
{
    if (texture.filePath.isEmpty() && texture.embedded.isEmpty()) {
        return none;
    }
    const auto found = std::find_if(m_images.begin(), m_images.end(), [&texture](const Entry& entry) {
        return texture.filePath.isEmpty()
                   ? entry.texture.filePath.isEmpty() && entry.texture.embedded.isSharedWith(texture.embedded)
                   : entry.texture.filePath == texture.filePath;
    });
    if (found != m_images.end()) {
        return int(found - m_images.begin());
    }
    m_images.push_back({texture, ImageStore::Key(texture), ++m_revision});
    return Count() - 1;
}

bool ViewedImages::Refresh()
{
    bool hasChanged = false;
    for (Entry& entry : m_images) {
        ImageStore::Key key(entry.texture);
        if (!(key == entry.key)) {
            entry.key = std::move(key);
            entry.revision = ++m_revision;
            hasChanged = true;
        }
    }
    return hasChanged;
}

void ViewedImages::Touch(const QString& path)
{
    for (Entry& entry : m_images) {
        if (!path.isEmpty() && entry.texture.filePath == path) {
            entry.revision = ++m_revision;
        }
    }
}

QImage ViewedImages::Get(int image)
{
    return m_store.Get(m_images[std::size_t(image)].texture)->image;
}

} // namespace Host
