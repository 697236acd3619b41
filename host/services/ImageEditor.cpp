#include "host/services/ImageEditor.h"

#include "host/images/ImageDecode.h"
#include "host/images/ImageFormat.h"
#include "host/scene/SaveFile.h"
#include "host/services/HostApplication.h"
#include "host/services/Pictures.h"
#include "host/services/WeightImages.h"

#include <QCryptographicHash>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>
#include <utility>

namespace Host {

namespace {

constexpr int settleTime = 150; // ms

QByteArray CheckSum(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha1);
}

/// What there is in \p file now; empty when it cannot be read.
QByteArray Content(const QString& file)
{
    QString error;
    return ReadImageFile(file, error);
}

/// Whether \p file is what an image editor may be handed. A scene names any files that it likes: one that is no image
/// could be a program to whoever opens it, and a path that is not absolute an option of the editor.
bool MayBeLaunched(const QString& file)
{
    constexpr qint64 longestHeader = 64;
    const QFileInfo info(file);
    QFile image(file);
    return info.isAbsolute() && info.isNativePath() && info.isFile() && image.open(QIODevice::ReadOnly) &&
           ReadImageHeader(image.read(longestHeader)).format != ImageFormat::None;
}

/// The desktop chooses the program by the file's name, so the name has to be an image's, too.
bool IsImageToTheDesktop(const QString& file)
{
    static const QStringList suffixes = QString::fromLatin1(",jpg,jpeg,bmp,gif,png,tga").split(QLatin1Char(','));
    return suffixes.contains(QFileInfo(file).suffix().toLower());
}

/// Starts the program itself, without a shell: each file is one argument, whatever is in its name.
bool Open(const QString& program, const QStringList& files)
{
    if (program.isEmpty()) {
        if (!std::all_of(files.begin(), files.end(), &IsImageToTheDesktop)) {
            return false;
        }
        return std::all_of(files.begin(), files.end(),
                           [](const QString& file) { return QDesktopServices::openUrl(QUrl::fromLocalFile(file)); });
    }
    QStringList command = QFileInfo(program).isFile() ? QStringList{program} : QProcess::splitCommand(program);
    if (command.isEmpty()) {
        return false;
    }
    const QString name = command.takeFirst();
    return QProcess::startDetached(name, command + files);
}

/// Whether \p object shows the image of \p file anywhere.
bool Shows(const Object& object, const QString& file)
{
    const auto hasTexture = [&file](const Material& material) {
        return std::any_of(material.textures.begin(), material.textures.end(),
                           [&file](const auto& texture) { return texture.second.filePath == file; });
    };
    const auto hasWeight = [&file](const Mesh& mesh) {
        return std::any_of(mesh.materialSlots.begin(), mesh.materialSlots.end(),
                           [&file](const MaterialSlot& slot) { return slot.cloth.weight.image.filePath == file; });
    };
    return std::any_of(object.materials.begin(), object.materials.end(), hasTexture) ||
           std::any_of(object.meshes.begin(), object.meshes.end(), hasWeight);
}

} // namespace

ImageEditor::ImageEditor(HostApplication& host)
    : m_host(host)
    , m_layouts(host)
{
    m_settled.setSingleShot(true);
    m_settled.setInterval(settleTime);
    connect(&m_settled, &QTimer::timeout, this, &ImageEditor::CheckTouchedFiles);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &ImageEditor::OnTouched);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &ImageEditor::OnTouched);
    connect(&host, &HostApplication::SceneReplaced, this, &ImageEditor::ForgetScene);
}

ImageEditor::~ImageEditor() = default;

BF::Result ImageEditor::Launch(const QStringList& files)
{
    if (files.isEmpty()) {
        return BF::Results::NothingDone;
    }
    if (!std::all_of(files.begin(), files.end(), &MayBeLaunched)) {
        return BF::Results::Refused;
    }
    // Watched first: a program may be done before this one gets to it.
    for (const QString& file : files) {
        Watch(file);
    }
    return Open(m_program, files) ? BF::Results::Success : BF::Results::Refused;
}

QString ImageEditor::FileForWeightImage(const ClothAddress& address)
{
    const WeightImage* weight = m_host.Images().WeightOf(address);
    if (!weight || weight->IsNone()) {
        return {};
    }
    if (!weight->image.filePath.isEmpty()) {
        return weight->image.filePath;
    }
    const QByteArray& bytes = weight->image.embedded;
    for (auto copy = m_weightCopies.begin(); copy != m_weightCopies.end(); ++copy) {
        const ClothAddress& other = copy.value();
        const bool isSame = other.mesh == address.mesh && other.material == address.material;
        if (isSame && Content(copy.key()) == bytes) {
            return copy.key();
        }
    }
    const Scene& scene = m_host.CurrentScene();
    const QString name = scene.FindMesh(address.mesh)->name + QLatin1Char('-') +
                         scene.FindMaterial(address.material)->name + QLatin1String("-weights");
    const QString file = NewFilePath(name, QString::fromLatin1(SuffixOf(ReadImageHeader(bytes).format)));
    if (!WriteFile(file, bytes)) {
        return {};
    }
    m_weightCopies.insert(file, address);
    return file;
}

bool ImageEditor::WriteFile(const QString& path, const QByteArray& content, QString problem)
{
    if (problem.isEmpty()) {
        problem = path.isEmpty() ? tr("there is no folder for temporary files") : SaveFile(path, content);
    }
    if (problem.isEmpty()) {
        return true;
    }
    m_host.ExplainNextBox(tr("The file \"%1\" for the image editor could not be written: %2.")
                              .arg(QDir::toNativeSeparators(path), problem));
    return false;
}

QString ImageEditor::NewFilePath(const QString& name, const QString& suffix)
{
    if (!m_folder) {
        m_folder = std::make_unique<QTemporaryDir>();
    }
    if (!m_folder->isValid()) {
        return {};
    }
    static const QRegularExpression unsafe(QStringLiteral("[^\\w-]"), QRegularExpression::UseUnicodePropertiesOption);
    constexpr int longestName = 60;
    const QString safeName = QString(name).replace(unsafe, QStringLiteral("_")).left(longestName);
    return m_folder->filePath(QStringLiteral("%1-%2.%3").arg(safeName).arg(++m_fileNumber).arg(suffix));
}

/// The folder is watched as well: many programs write another file and let it take the place of the old one, of which
/// the watch would end with the old one.
void ImageEditor::Watch(const QString& file)
{
    m_watched.insert(file, CheckSum(Content(file)));
    m_watcher.addPath(file);
    m_watcher.addPath(QFileInfo(file).absolutePath());
}

void ImageEditor::OnTouched(const QString& fileOrFolder)
{
    for (auto file = m_watched.cbegin(); file != m_watched.cend(); ++file) {
        if (file.key() == fileOrFolder || QFileInfo(file.key()).absolutePath() == fileOrFolder) {
            m_touched.insert(file.key());
        }
    }
    if (!m_touched.isEmpty()) {
        m_settled.start();
    }
}

void ImageEditor::CheckTouchedFiles()
{
    const QSet<QString> touched = std::exchange(m_touched, {});
    for (const QString& file : touched) {
        m_watcher.addPath(file); // again, when another file has taken the place of the one that was watched
        const QByteArray bytes = Content(file);
        const auto known = m_watched.find(file);
        // A file that is only half written is looked at again when the rest comes.
        if (known == m_watched.end() || !ReadImageHeader(bytes).isComplete) {
            continue;
        }
        const QByteArray sum = CheckSum(bytes);
        if (*known != sum) {
            *known = sum;
            TakeChange(file, bytes);
        }
    }
}

void ImageEditor::TakeChange(const QString& file, const QByteArray& bytes)
{
    BF::CArrayList<BF::CHandle*> changed;
    const auto copy = m_weightCopies.constFind(file);
    if (copy != m_weightCopies.constEnd()) {
        const ClothAddress address = *copy;
        if (m_host.Weights().ReplaceEmbedded(address, bytes).IsSuccess()) {
            changed.Add(address.object);
        }
    } else {
        m_host.Images().Store().ForgetFile(file);
        m_layouts.TakePainted(file);
        for (const Object* object : m_host.CurrentScene().Objects()) {
            if (Shows(*object, file)) {
                changed.Add(object->handle);
            }
        }
    }
    if (!changed.IsEmpty()) {
        m_host.Send("LaunchedImageChanged", &MV::CEventSender::LaunchedImageChanged, changed);
    }
}

void ImageEditor::ForgetScene()
{
    const QStringList paths = m_watcher.files() + m_watcher.directories();
    if (!paths.isEmpty()) {
        m_watcher.removePaths(paths);
    }
    m_watched.clear();
    m_weightCopies.clear();
    m_layouts.Clear();
    m_touched.clear();
}

} // namespace Host
