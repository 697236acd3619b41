#include "host/images/ImageStore.h"

#include "host/images/ImageDecode.h"
#include "host/images/Thumbnail.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMutexLocker>
#include <QRunnable>

#include <algorithm>
#include <utility>

namespace Host {

namespace {

constexpr int previewSide = 512;

/// All decoded images together; the one asked for last stays whatever its size.
constexpr qint64 mostBytes = qint64{768} << 20;

qint64 BytesOf(const StoredImage& image)
{
    return image.image.sizeInBytes() + image.preview.sizeInBytes();
}

} // namespace

ImageStore::Key::Key(const Texture& source)
{
    if (source.filePath.isEmpty()) {
        embedded = source.embedded;
        return;
    }
    path = source.filePath;
    const QFileInfo info(path);
    if (info.exists()) {
        modified = info.lastModified().toMSecsSinceEpoch();
        size = info.size();
    }
}

bool ImageStore::Key::operator==(const Key& other) const
{
    return modified == other.modified && size == other.size && IsSameSource(other);
}

bool ImageStore::Key::IsSameSource(const Key& other) const
{
    return path == other.path && (embedded.isSharedWith(other.embedded) || embedded == other.embedded);
}

/// Of embedded bytes only the first ones count: the rest is compared where these are the same.
std::size_t ImageStore::SourceHash::operator()(const Key& key) const
{
    constexpr int most = 4096;
    const auto first = static_cast<std::size_t>(std::min(key.embedded.size(), most));
    return qHash(key.path) ^ qHashBits(key.embedded.constData(), first, static_cast<uint>(key.embedded.size()));
}

ImageStore::ImageStore(QObject* parent)
    : QObject(parent)
{
    // Decoding takes memory more than anything else.
    m_pool.setMaxThreadCount(2);
}

ImageStore::~ImageStore()
{
    m_pool.clear();
    m_pool.waitForDone();
}

ImageStore::Image ImageStore::Get(const Texture& source)
{
    const Key key(source);
    if (m_loading.count(key) > 0) {
        m_pool.waitForDone();
        TakeFinished();
    }
    const Entry* found = Find(key);
    return Keep(key, found ? found->image : Decode(key));
}

void ImageStore::LoadInBackground(const std::vector<Texture>& sources)
{
    for (const Texture& source : sources) {
        const Key key(source);
        if (Find(key) || !m_loading.insert(key).second) {
            continue;
        }
        m_pool.start([this, key] {
            Image image = Decode(key);
            const QMutexLocker lock(&m_mutex);
            m_finished.push_back({key, std::move(image)});
            QMetaObject::invokeMethod(this, &ImageStore::Collect, Qt::QueuedConnection);
        });
    }
    if (!m_loading.empty() && !m_isLoading) {
        m_isLoading = true;
        Q_EMIT LoadingStarted();
    }
}

bool ImageStore::IsLoading(const Texture& source) const
{
    return !m_loading.empty() && m_loading.count(Key(source)) > 0;
}

QByteArray ImageStore::ReadForEmbedding(const QString& path, QString& error)
{
    const Key file({path, {}});
    QByteArray bytes = ReadImageFile(path, error);
    const Entry* decoded = Find(file);
    if (decoded && file == Key({path, {}}) && !bytes.isEmpty()) {
        Keep(Key({{}, bytes}), decoded->image);
    }
    return bytes;
}

void ImageStore::ForgetFile(const QString& path)
{
    if (!path.isEmpty()) {
        Remove(Key({path, {}}));
    }
}

/// Runs on any thread.
ImageStore::Image ImageStore::Decode(const Key& key)
{
    ++m_decodeCount;
    DecodedImage decoded = key.path.isEmpty() ? DecodeImage(key.embedded) : DecodeImageFile(key.path);
    StoredImage stored{std::move(decoded.image), {}, std::move(decoded.error)};
    if (!stored.image.isNull()) {
        stored.preview = Reduced(stored.image, previewSide);
    }
    return std::make_shared<const StoredImage>(std::move(stored));
}

const ImageStore::Entry* ImageStore::Find(const Key& key) const
{
    const auto found = m_places.find(key);
    return found != m_places.end() && found->first == key ? &*found->second : nullptr;
}

/// Puts \p image in front, in place of what there was of the same source.
ImageStore::Image ImageStore::Keep(const Key& key, Image image)
{
    Remove(key);
    m_entries.push_front({key, image});
    m_places.emplace(key, m_entries.begin());
    m_bytes += BytesOf(*image);
    while (m_bytes > mostBytes && m_entries.size() > 1) {
        Remove(Key(m_entries.back().key));
    }
    return image;
}

/// Forgets the image of the same source as \p source, if there is one.
void ImageStore::Remove(const Key& source)
{
    const auto found = m_places.find(source);
    if (found != m_places.end()) {
        m_bytes -= BytesOf(*found->second->image);
        m_entries.erase(found->second);
        m_places.erase(found);
    }
}

/// Takes over what was decoded in the background.
void ImageStore::TakeFinished()
{
    std::vector<Entry> finished;
    {
        const QMutexLocker lock(&m_mutex);
        finished = std::exchange(m_finished, {});
    }
    for (Entry& entry : finished) {
        m_loading.erase(entry.key);
        Keep(entry.key, std::move(entry.image));
    }
}

/// Never called from Get(): whoever asks for an image does not expect to be called meanwhile.
void ImageStore::Collect()
{
    TakeFinished();
    if (m_loading.empty() && m_isLoading) {
        m_isLoading = false;
        Q_EMIT LoadingDone();
    }
}

} // namespace Host
