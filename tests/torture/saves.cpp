// Kills a process in the middle of saving, and fills the disk at every block of a file: the file is the old one or the
// new one, never a part of either. Arguments: which of the saves below; all without any.
#include "host/services/HostApplication.h"
#include "preset/ProfileFile.h"
#include "tests/support/FullDisk.h"
#include "tests/support/SampleImages.h"
#include "tests/support/SampleModels.h"

#include "host/scene/SceneFile.h"
#include "plugin/services/FileService.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int deaths = 200;
constexpr int block = 1024;

/// A way of saving. \param isNew  which of two contents \return whether it claims to have saved
struct Save
{
    const char* name;
    bool (*run)(const QString& path, bool isNew);
};

Host::Object Model(bool isNew)
{
    Host::Object model = SampleModels::Hero();
    for (int i = 0; i < (isNew ? 3000 : 1000); ++i) {
        model.meshes.front().positions.emplace_back(float(i), 0.5F, 0.25F);
        model.meshes.front().normals.emplace_back(0.0F, 0.0F, 1.0F);
        model.meshes.front().uvs.emplace_back(0.5F, 0.5F);
    }
    return model;
}

bool SaveScene(const QString& path, bool isNew)
{
    Host::Scene scene;
    scene.AddObject(Model(isNew));
    return Host::SaveScene(scene, path).ok;
}

bool SaveProfile(const QString& path, bool isNew)
{
    const auto save = [isNew](QSettings& profile) {
        for (int i = 0; i < (isNew ? 400 : 200); ++i) {
            profile.setValue(QStringLiteral("Key_%1").arg(i, 4, 10, QLatin1Char('0')), isNew ? 1.5 : 2.25);
        }
    };
    return MV::SaveProfile(path, {{QStringLiteral("Property"), {}, save}}) == MV::EProfileProblem::None;
}

bool SaveWeightImage(const QString& path, bool isNew)
{
    Host::HostApplication host;
    const Host::ClothAddress at = Host::Scene::SlotsOf(host.CurrentScene().AddObject(SampleModels::Hero())).front();
    QImage image(isNew ? 160 : 90, 90, QImage::Format_Grayscale8);
    QRandomGenerator random(isNew ? 1 : 2);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            image.scanLine(y)[x] = uchar(random.bounded(256));
        }
    }
    host.CurrentScene().FindSlot(at)->cloth.weight.image.embedded = SampleImages::Encoded(QStringLiteral("png"), image);
    return host.GetFileService()->SaveWeightImage(at.object, at.mesh, at.material, path.toStdWString()).IsSuccess();
}

const Save saves[] = {
    {"scene", SaveScene},
    {"profile", SaveProfile},
    {"weight-image", SaveWeightImage},
};

QByteArray Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// One way of saving, put to the test.
class Trial
{
public:
    explicit Trial(const Save& save)
        : m_save(save)
        , m_path(m_folder.filePath(QStringLiteral("file.png")))
    {
        // What a save leaves over the old file: a profile keeps what it had besides.
        m_old = Content(false);
        m_new = Content(true);
        PutOld();
        QElapsedTimer clock;
        clock.start();
        m_save.run(m_path, true);
        m_time = int(clock.nsecsElapsed() / 1000);
    }

    /// \return what is wrong
    QStringList Die()
    {
        QStringList problems;
        int whole = 0;
        for (int i = 0; i < deaths; ++i) {
            PutOld();
            const pid_t child = fork();
            if (child == 0) {
                m_save.run(m_path, true);
                _exit(0);
            }
            usleep(useconds_t(QRandomGenerator::global()->bounded(m_time * 3 / 2 + 1)));
            kill(child, SIGKILL);
            waitpid(child, nullptr, 0);
            whole += Read(m_path) == m_new ? 1 : 0;
            Check(QStringLiteral("killed"), problems);
        }
        QTextStream(stdout) << m_save.name << ": killed " << deaths << " times, " << whole
                            << " of them after the end\n";
        return problems;
    }

    QStringList Fill()
    {
        QStringList problems;
        int count = 0;
        for (int room = 0; room < m_new.size(); room += block, ++count) {
            PutOld();
            bool isSaved = false;
            {
                const FullDisk disk{rlim_t(room)};
                isSaved = m_save.run(m_path, true);
            }
            Check(QStringLiteral("disk full after %1 bytes").arg(room), problems);
            if (isSaved != (Read(m_path) == m_new)) {
                problems.append(QStringLiteral("disk full after %1 bytes: says that it %2")
                                    .arg(room)
                                    .arg(isSaved ? QLatin1String("saved") : QLatin1String("failed")));
            }
        }
        QTextStream(stdout) << m_save.name << ": disk full " << count << " times\n";
        return problems;
    }

private:
    QByteArray Content(bool isNew)
    {
        if (!m_save.run(m_path, isNew)) {
            qFatal("%s cannot be saved at all", m_save.name);
        }
        return Read(m_path);
    }

    void PutOld()
    {
        QFile file(m_path);
        if (!file.open(QIODevice::WriteOnly) || file.write(m_old) != m_old.size()) {
            qFatal("no old file");
        }
    }

    void Check(const QString& when, QStringList& problems) const
    {
        const QByteArray now = Read(m_path);
        if (now != m_old && now != m_new) {
            problems.append(QStringLiteral("%1: neither the old nor the new file, %2 bytes").arg(when).arg(now.size()));
        }
    }

    const Save& m_save;
    QTemporaryDir m_folder;
    QString m_path;
    QByteArray m_old;
    QByteArray m_new;
    int m_time = 0; ///< What a save takes, in microseconds.
};

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_NO_GLIB", "1");
    const QApplication application(argc, argv);
    const QStringList wanted = QApplication::arguments().mid(1);
    int failures = 0;
    for (const Save& save : saves) {
        if (!wanted.isEmpty() && !wanted.contains(QLatin1String(save.name))) {
            continue;
        }
        Trial trial(save);
        for (const QString& problem : trial.Die() + trial.Fill()) {
            QTextStream(stdout) << save.name << ": " << problem << '\n';
            ++failures;
        }
    }
    return failures == 0 ? 0 : 1;
}
