#include "host/images/ImageStore.h"

#include "host/images/ImageDecode.h"
#include "host/images/Thumbnail.h"

#include <QDateTime>
#include <QFileInfo>
#include <QMutexLocker>
#include <QRunnable>

#include <algorithm>
#include <iterator>
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
    return path == other.path && modified == other.modified && size == other.size &&
           (embedded.isSharedWith(other.embedded) || embedded == other.embedded);
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
    if (std::find(m_loading.begin(), m_loading.end(), key) != m_loading.end()) {
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
        if (Find(key) || std::find(m_loading.begin(), m_loading.end(), key) != m_loading.end()) {
            continue;
        }
        m_loading.push_back(key);
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
    return !m_loading.empty() && std::find(m_loading.begin(), m_loading.end(), Key(source)) != m_loading.end();
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
    m_entries.remove_if([&path](const Entry& entry) { return entry.key.path == path; });
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
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(), [&key](const Entry& entry) { return entry.key == key; });
    return found == m_entries.end() ? nullptr : &*found;
}

/// Puts \p image in front, in place of what there was under \p key and of earlier states of the same file.
ImageStore::Image ImageStore::Keep(const Key& key, Image image)
{
    m_entries.remove_if(
        [&key](const Entry& entry) { return entry.key == key || (!key.path.isEmpty() && entry.key.path == key.path); });
    m_entries.push_front({key, image});
    qint64 bytes = 0;
    const auto isTooMuch = [&bytes](const Entry& entry) { return (bytes += BytesOf(*entry.image)) > mostBytes; };
    m_entries.erase(std::find_if(std::next(m_entries.begin()), m_entries.end(), isTooMuch), m_entries.end());
    return image;
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
        m_loading.erase(std::remove(m_loading.begin(), m_loading.end(), entry.key), m_loading.end());
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
