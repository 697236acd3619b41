#pragma once

#include "host/scene/Entities.h"

#include <QImage>
#include <QMutex>
#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <cstddef>
#include <list>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace Host {

/// An image that was decoded, or the reason why it could not be.
struct StoredImage
{
    QImage image;   ///< Null when it could not be read.
    QImage preview; ///< The image reduced to thumbnail size.
    QString error;  ///< As DecodedImage has it.
};

/// The decoded images of a scene. An image is decoded when it is first asked for and again only when its file has
/// changed; what was not used for long makes room.
class ImageStore : public QObject
{
    Q_OBJECT

public:
    using Image = std::shared_ptr<const StoredImage>;

    /// A state of an image's content.
    struct Key
    {
        explicit Key(const Texture& source);

        QString path;
        qint64 modified = 0; ///< Of the file, in ms; 0 for none.
        qint64 size = -1;    ///< Of the file.
        QByteArray embedded;

        bool operator==(const Key& other) const;
        /// Whether both are states of the same file, or the same embedded bytes.
        bool IsSameSource(const Key& other) const;
    };

    explicit ImageStore(QObject* parent = nullptr);
    /// Waits for what is being decoded in the background.
    ~ImageStore() override;

    /// The image of a file or, without one, of embedded bytes. Waits when it is being loaded in the background.
    /// \return never null
    Image Get(const Texture& source);

    /// Decodes \p sources on other threads, those that are not there yet.
    void LoadInBackground(const std::vector<Texture>& sources);
    bool IsLoading(const Texture& source) const;

    /// The bytes of an image file that is to be embedded; when the file was decoded already, so are they.
    /// \param error  empty, or why the file cannot be read
    QByteArray ReadForEmbedding(const QString& path, QString& error);

    /// Lets a file be decoded again, even when it looks unchanged.
    void ForgetFile(const QString& path);

    /// How many images were decoded so far.
    int DecodeCount() const { return m_decodeCount; }

Q_SIGNALS:
    /// Loading in the background begins; more may join until it is done.
    void LoadingStarted();
    void LoadingDone();

private:
    struct SourceHash
    {
        std::size_t operator()(const Key& key) const;
    };
    struct IsSameSource
    {
        bool operator()(const Key& a, const Key& b) const { return a.IsSameSource(b); }
    };
    struct Entry
    {
        Key key;
        Image image;
    };
    using Entries = std::list<Entry>;

    Image Decode(const Key& key);
    const Entry* Find(const Key& key) const;
    Image Keep(const Key& key, Image image);
    void Remove(const Key& source);
    void TakeFinished();
    void Collect();

    Entries m_entries; ///< The one used last comes first.
    /// Where the entry of a source is.
    std::unordered_map<Key, Entries::iterator, SourceHash, IsSameSource> m_places;
    qint64 m_bytes = 0; ///< Of all entries.
    std::unordered_set<Key, SourceHash> m_loading;
    bool m_isLoading = false; ///< LoadingStarted() was sent and LoadingDone() is to come.
    QMutex m_mutex;
    std::vector<Entry> m_finished; ///< Decoded in the background and not collected yet; guarded.
    std::atomic<int> m_decodeCount{0};
    QThreadPool m_pool;
};

} // namespace Host
