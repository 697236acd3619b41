#include "host/services/UvLayoutFiles.h"

#include "host/services/HostApplication.h"
#include "host/services/ImageEditor.h"
#include "host/services/UserDialogs.h"
#include "host/services/WeightImages.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QStandardPaths>

#include <algorithm>

namespace Host {

namespace {

bool AreSame(const UvLayoutFiles::Slots& a, const UvLayoutFiles::Slots& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const ClothAddress& one, const ClothAddress& other) {
        return one.object == other.object && one.mesh == other.mesh && one.material == other.material;
    });
}

QString PicturesFolder()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return QFileInfo(pictures).isDir() ? pictures : QDir::homePath();
}

/// A path in \p folder at which there is nothing yet: what somebody painted before is not to be written over.
QString FreePath(const QString& folder, const QString& name)
{
    const QDir parent(folder);
    QString path = parent.filePath(name + QLatin1String(".png"));
    for (int number = 2; QFileInfo::exists(path); ++number) {
        path = parent.filePath(QStringLiteral("%1-%2.png").arg(name).arg(number));
    }
    return path;
}

/// \param error  empty, or why there is no such image
QByteArray Encode(const QImage& layout, const QByteArray& format, QString& error)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, format);
    if (!writer.write(layout)) {
        error = HostApplication::tr("images of this format cannot be written");
    }
    return buffer.data();
}

} // namespace

QString UvLayoutFiles::FileOf(const Slots& drawn)
{
    for (auto file = m_drawn.cbegin(); file != m_drawn.cend(); ++file) {
        if (AreSame(file.value(), drawn) && QFileInfo(file.key()).isFile()) {
            return file.key();
        }
    }
    const QString linked = LinkedFile(drawn);
    if (!m_kept.contains(linked) || !QFileInfo(linked).isFile()) {
        return {};
    }
    m_drawn.insert(linked, drawn);
    return linked;
}

/// The file of the weight image that all of \p drawn are linked to; a null string when there is no such file.
QString UvLayoutFiles::LinkedFile(const Slots& drawn) const
{
    QString file;
    for (const ClothAddress& address : drawn) {
        const QString& linked = m_host.CurrentScene().FindSlot(address)->cloth.weight.image.filePath;
        if (linked.isEmpty() || (!file.isNull() && linked != file)) {
            return {};
        }
        file = linked;
    }
    return file;
}

BF::Result UvLayoutFiles::Keep(const QString& name, const QImage& layout, const Slots& drawn, QString& file)
{
    const auto prepared = m_host.Answers().TakeFile();
    const bool isForTheSession = !prepared && m_host.Answers().unattended;
    QString path;
    if (isForTheSession) {
        path = m_host.Editor().NewFilePath(name, QStringLiteral("png"));
    } else {
        const QString chosen = prepared ? *prepared : Ask(name);
        if (chosen.isEmpty()) {
            return BF::Results::NothingDone;
        }
        path = QFileInfo(chosen).absoluteFilePath();
    }
    QString error;
    const QByteArray content = Encode(layout, QFileInfo(path).suffix().toLower().toLatin1(), error);
    if (!m_host.Editor().WriteFile(path, content, error)) {
        return BF::Results::ResourceFailure;
    }
    m_drawn.insert(path, drawn);
    if (!isForTheSession) {
        AddKept(path);
    }
    file = path;
    return BF::Results::Success;
}

QString UvLayoutFiles::Ask(const QString& name) const
{
    const QString lastFolder = m_kept.isEmpty() ? QString() : QFileInfo(m_kept.first()).absolutePath();
    const QString folder = QFileInfo(lastFolder).isDir() ? lastFolder : PicturesFolder();
    return AskForFile(m_host.MainWindow(),
                      {HostApplication::tr("Keep UV Layout"), HostApplication::tr("Images (*.png *.jpg *.jpeg *.bmp)"),
                       true, QStringLiteral("png"), FreePath(folder, name)});
}

void UvLayoutFiles::AddKept(const QString& file)
{
    m_kept.removeAll(file);
    m_kept.prepend(file);
    m_kept = m_kept.mid(0, most);
    Q_EMIT KeptChanged(m_kept);
}

void UvLayoutFiles::TakePainted(const QString& file)
{
    const Slots drawn = m_drawn.value(file);
    if (!drawn.empty()) {
        m_host.Weights().TakePainted(drawn, file);
    }
}

} // namespace Host
