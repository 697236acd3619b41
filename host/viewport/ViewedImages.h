#pragma once

#include "host/images/ImageStore.h"

#include <QHash>
#include <QStringList>

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
    void Clear();

    /// Looks whether the files have changed.
    void Refresh();
    /// Takes it that all files have changed, even those that look as before.
    void Touch();

    /// Changes with the image's content.
    int Revision(int image) const { return m_images[std::size_t(image)].revision; }
    /// Not ready while it is being loaded by others.
    bool IsReady(int image) const { return !m_store.IsLoading(m_images[std::size_t(image)].texture); }
    /// The image itself; null when it cannot be read. May take as long as decoding does.
    QImage Get(int image);

    /// The names of the files that could not be read so far.
    QStringList Unreadable() const;

private:
    struct Entry
    {
        Texture texture; ///< Keeps embedded bytes where they are, as which they are known.
        ImageStore::Key key;
        int revision = 0;
        bool isUnreadable = false;
    };

    ImageStore& m_store;
    std::vector<Entry> m_images;
    QHash<QString, int> m_files;
    QHash<const char*, int> m_embedded;
    int m_revision = 0;
};

} // namespace Host
