#pragma once

#include "host/images/ImageStore.h"

#include <vector>

namespace Host {

/// The images that are on the model, each once however many materials have it.
class ViewedImages
{
public:
    static constexpr int none = -1;

    explicit ViewedImages(ImageStore& store)
        : m_store(store)
    {
    }

    /// The number of an image; none for a texture without one.
    int Add(const Texture& texture);
    int Count() const { return int(m_images.size()); }
    void Clear() { m_images.clear(); }

    /// Looks whether the files have changed. \return true when one has
    bool Refresh();
    /// Takes it that the file \p path has changed, even when it looks as before.
    void Touch(const QString& path);

    /// Changes with the image's content.
    int Revision(int image) const { return m_images[std::size_t(image)].revision; }
    /// Not ready while it is being loaded by others.
    bool IsReady(int image) const { return !m_store.IsLoading(m_images[std::size_t(image)].texture); }
    /// The image itself; null when it cannot be read. May take as long as decoding does.
    QImage Get(int image);

private:
    struct Entry
    {
        Texture texture;
        ImageStore::Key key;
        int revision = 0;
    };

    ImageStore& m_store;
    std::vector<Entry> m_images;
    int m_revision = 0;
};

} // namespace Host
