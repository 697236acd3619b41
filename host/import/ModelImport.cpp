#include "host/import/ModelImport.h"

#include "host/import/ModelFiles.h"
#include "host/import/SceneConversion.h"
#include "host/scene/Limits.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <assimp/BaseImporter.h>
#include <assimp/Importer.hpp>
#include <assimp/ProgressHandler.hpp>
#include <assimp/config.h>
#include <assimp/mesh.h>
#include <assimp/postprocess.h>
#include <assimp/scene.h>

#include <algorithm>
#include <array>
#include <exception>
#include <memory>

namespace Host {

namespace {

// Shares of the whole at which a stage ends.
constexpr double readEnd = 0.6;
constexpr double processEnd = 0.9;

/// What Assimp does to the scene once it is read, one by one so that a cancel is heard in between.
constexpr std::array<unsigned, 4> processSteps{
    // What distinguishes vertices but is not imported would keep them from being joined.
    aiProcess_RemoveComponent,
    aiProcess_Triangulate,
    aiProcess_SortByPType,
    aiProcess_JoinIdenticalVertices,
};

constexpr int unwantedComponents = aiComponent_TANGENTS_AND_BITANGENTS | aiComponent_COLORS | aiComponent_BONEWEIGHTS |
                                   aiComponent_ANIMATIONS | aiComponent_LIGHTS | aiComponent_CAMERAS |
                                   aiComponent_TEXCOORDSn(1) | aiComponent_TEXCOORDSn(2) | aiComponent_TEXCOORDSn(3);

/// By suffix the readers that crash or hang on files that were cut off. Losing a scene is worse than not reading them.
constexpr std::array unreliableReaders{"cob", "lws", "md5mesh", "mdl", "ogex", "smd"};

void RemoveUnreliableReaders(Assimp::Importer& importer)
{
    for (const char* suffix : unreliableReaders) {
        const std::unique_ptr<Assimp::BaseImporter> reader(importer.GetImporter(suffix));
        importer.UnregisterLoader(reader.get());
    }
}

/// Passes the progress on, never backwards, and remembers that somebody cancelled.
class ProgressReport
{
public:
    explicit ProgressReport(const ImportProgress& progress)
        : m_progress(progress)
    {
    }

    /// \return false once the import is cancelled
    bool Report(double done)
    {
        m_done = std::max(m_done, done);
        m_cancelled = m_cancelled || (m_progress && !m_progress(m_done));
        return !m_cancelled;
    }

private:
    const ImportProgress& m_progress;
    double m_done = 0.0;
    bool m_cancelled = false;
};

/// Hears of the reading only; what comes after is reported step by step.
class ReadProgress : public Assimp::ProgressHandler
{
public:
    explicit ReadProgress(ProgressReport& report)
        : m_report(report)
    {
    }

    bool Update(float /*percentage*/) override { return m_report.Report(0.0); }

    void UpdateFileRead(int step, int steps) override
    {
        m_report.Report(steps > 0 ? readEnd * qBound(0, step, steps) / steps : 0.0);
    }

    void UpdatePostProcess(int /*step*/, int /*steps*/) override {}

private:
    ProgressReport& m_report;
};

/// Where the reasons are translated.
class ModelText
{
    Q_DECLARE_TR_FUNCTIONS(ModelText)
};

ImportResult Cancelled()
{
    ImportResult result;
    result.cancelled = true;
    return result;
}

ImportResult Failed(const QString& sentence, const QString& path)
{
    ImportResult result;
    result.error = sentence.arg(QDir::toNativeSeparators(path));
    return result;
}

ImportResult NotReadable(const QString& path, const QString& reason)
{
    ImportResult result;
    result.error =
        ModelText::tr("The model file \"%1\" could not be read: %2").arg(QDir::toNativeSeparators(path), reason);
    return result;
}

ImportResult TooLarge(const QString& path, const QString& reason)
{
    ImportResult result;
    result.error = ModelText::tr("The model in \"%1\" is too large: %2.").arg(QDir::toNativeSeparators(path), reason);
    return result;
}

/// Why there is no use in handing the file to Assimp; a null string when there is.
QString ReasonToRefuse(const QFileInfo& file)
{
    if (!file.exists()) {
        return ModelText::tr("There is no model file \"%1\".");
    }
    if (!file.isFile()) {
        return ModelText::tr("\"%1\" is not a file.");
    }
    if (file.size() == 0) {
        return ModelText::tr("The model file \"%1\" is empty.");
    }
    if (file.size() > Limits::modelFileSize) {
        return ModelText::tr("The model file \"%1\" is too large.");
    }
    return {};
}

/// The spelling of a path that Assimp passes on to the system.
QByteArray NativePath(const QString& path)
{
#ifdef Q_OS_WIN
    return path.toUtf8();
#else
    return QFile::encodeName(path);
#endif
}

/// How many centimetres a unit of the file has; none when the user would not say.
std::optional<double> UnitOf(const aiScene& scene, const QFileInfo& file, const UnitChoice& chooseUnit)
{
    if (const std::optional<double> unit = UnitOfFile(scene, file.suffix().toLower())) {
        return unit;
    }
    const double size = LargestSide(scene);
    const std::optional<LengthUnit> chosen = chooseUnit ? chooseUnit(size) : GuessUnit(size);
    return chosen ? std::make_optional(chosen->centimetres) : std::nullopt;
}

ImportResult Import(const QFileInfo& file, ProgressReport& report, const UnitChoice& chooseUnit)
{
    const QString path = file.filePath();
    Assimp::Importer importer;
    RemoveUnreliableReaders(importer);
    importer.SetIOHandler(std::make_unique<ModelFiles>().release());
    importer.SetProgressHandler(std::make_unique<ReadProgress>(report).release());
    importer.SetPropertyInteger(AI_CONFIG_PP_RVC_FLAGS, unwantedComponents);
    importer.SetPropertyInteger(AI_CONFIG_PP_SBP_REMOVE, aiPrimitiveType_POINT | aiPrimitiveType_LINE);

    const aiScene* scene = importer.ReadFile(NativePath(file.absoluteFilePath()).constData(), 0);
    if (!report.Report(readEnd)) {
        return Cancelled();
    }
    if (!scene) {
        return NotReadable(path, QString::fromUtf8(importer.GetErrorString()));
    }
    if (HasBrokenFaces(*scene)) {
        return NotReadable(path, ModelText::tr("it is damaged."));
    }
    if (!HasSurfaces(*scene)) {
        return Failed(ModelText::tr("The model file \"%1\" holds no surfaces."), path);
    }
    const QString tooMuch = SizeOf(*scene).ReasonToRefuse();
    if (!tooMuch.isNull()) {
        return TooLarge(path, tooMuch);
    }
    for (std::size_t i = 0; i < processSteps.size(); ++i) {
        scene = importer.ApplyPostProcessing(processSteps[i]);
        if (!scene) {
            return NotReadable(path, QString::fromUtf8(importer.GetErrorString()));
        }
        if (!report.Report(readEnd + (processEnd - readEnd) * static_cast<double>(i + 1) / processSteps.size())) {
            return Cancelled();
        }
    }
    const QString tooMuchNow = SizeOf(*scene).ReasonToRefuse();
    if (!tooMuchNow.isNull()) {
        return TooLarge(path, tooMuchNow);
    }
    const std::optional<double> unit = UnitOf(*scene, file, chooseUnit);
    if (!unit) {
        return Cancelled();
    }
    QMatrix4x4 placement = Uprighting(*scene);
    placement.scale(static_cast<float>(*unit));
    ImportResult result;
    result.object = ToObject(*scene, placement, file.absoluteDir(),
                             [&report](double done) { return report.Report(processEnd + (1.0 - processEnd) * done); });
    if (!result.object || !report.Report(1.0)) {
        return Cancelled();
    }
    if (result.object->meshes.empty()) {
        return Failed(ModelText::tr("The model file \"%1\" holds no surfaces."), path);
    }
    result.object->name = file.completeBaseName();
    return result;
}

} // namespace

ImportResult ImportModel(const QString& path, const ImportProgress& progress, const UnitChoice& chooseUnit)
{
    const QFileInfo file(path);
    const QString refusal = ReasonToRefuse(file);
    if (!refusal.isNull()) {
        return Failed(refusal, path);
    }
    ProgressReport report(progress);
    if (!report.Report(0.0)) {
        return Cancelled();
    }
    try {
        return Import(file, report, chooseUnit);
    } catch (const std::exception& error) {
        return NotReadable(path, QString::fromLocal8Bit(error.what()));
    }
}

QStringList ImportableSuffixes()
{
    Assimp::Importer importer;
    RemoveUnreliableReaders(importer);
    aiString list;
    importer.GetExtensionList(list);
    QStringList suffixes;
    const QStringList patterns = QString::fromUtf8(list.C_Str()).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString& pattern : patterns) {
        suffixes.append(pattern.mid(pattern.indexOf(QLatin1Char('.')) + 1).toLower());
    }
    suffixes.sort();
    suffixes.removeDuplicates();
    return suffixes;
}

} // namespace Host
