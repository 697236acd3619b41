// How well collision holds: every cloth and hair preset in every wind preset through every motion, on the demo
// character's skirt and cape. Prints a table and fails when a bound is missed.
#include "host/simulation/BodyCollider.h"
#include "host/simulation/ClothShape.h"
#include "tests/preview/DemoPreview.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <set>

namespace {

constexpr double mostDeep = 0.5;    ///< Of the margin.
constexpr double mostShare = 0.001; ///< Of the vertices inside at any moment.
constexpr float lookNear = 1.0F;    ///< cm
constexpr float lookFar = 8.0F;     ///< cm, deeper than any limb
constexpr int framesBetweenFar = 10;

const struct
{
    const char* name;
    Host::MotionKind kind;
} motions[] = {{"still", Host::MotionKind::Still},
               {"sway", Host::MotionKind::Sway},
               {"turn", Host::MotionKind::Turn},
               {"walk", Host::MotionKind::Walk}};

struct Result
{
    double deepest = 0.0; ///< Margins.
    double share = 0.0;
    bool ranAway = false;

    void Take(const Result& other)
    {
        deepest = std::max(deepest, other.deepest);
        share = std::max(share, other.share);
        ranAway = ranAway || other.ranAway;
    }
    bool IsGood() const { return deepest <= mostDeep && share <= mostShare && !ranAway; }
};

/// Looks at frames with a collider of its own, which is moved to where the frame has the body.
class Judge
{
public:
    explicit Judge(const Host::PreviewModel& model)
    {
        // Vertices of the body in one row, welded.
        std::vector<QVector3D> positions;
        std::vector<quint32> indices;
        for (std::size_t i = 0; i < model.meshes.size(); ++i) {
            const auto base = quint32(positions.size());
            const Host::PreviewMesh& mesh = model.meshes[i];
            positions.insert(positions.end(), mesh.positions.begin(), mesh.positions.end());
            m_bases.push_back(base);
            for (const Host::PreviewSlot& slot : mesh.materialSlots) {
                std::set<quint32> vertices(slot.indices.begin(), slot.indices.end());
                for (const quint32 vertex : slot.indices) {
                    if (!slot.simulates) {
                        indices.push_back(base + vertex);
                    }
                }
                for (const quint32 vertex : vertices) {
                    if (slot.simulates) {
                        m_cloth.emplace_back(i, vertex);
                    }
                }
            }
        }
        const Host::WeldedVertices welded = Host::Weld(positions, indices);
        m_bodyVertices = welded.vertex;
        Host::IndexTriangles triangles;
        for (std::size_t i = 0; i < indices.size(); i += 3) {
            triangles.push_back(
                {welded.particle[indices[i]], welded.particle[indices[i + 1]], welded.particle[indices[i + 2]]});
        }
        Host::Vectors places;
        for (const quint32 vertex : m_bodyVertices) {
            places.push_back(Host::ToVector(positions[vertex]));
        }
        m_body = std::make_unique<Host::BodyCollider>(places, triangles);
    }

    Result Look(const Host::PreviewFrame& frame, float margin, bool isFar)
    {
        Host::Vectors places;
        for (const quint32 vertex : m_bodyVertices) {
            const auto mesh =
                std::size_t(std::upper_bound(m_bases.begin(), m_bases.end(), vertex) - m_bases.begin()) - 1;
            places.push_back(Host::ToVector(frame.meshes[mesh].positions[vertex - m_bases[mesh]]));
        }
        m_body->Reset(places);
        const float reach = isFar ? lookFar : lookNear;
        std::size_t inside = 0;
        float deepest = 0.0F;
        for (const auto& [mesh, vertex] : m_cloth) {
            std::array<Host::BodyCollider::Nearest, Host::BodyCollider::mostPieces> found;
            const std::size_t count =
                m_body->FindNearest(Host::ToVector(frame.meshes[mesh].positions[vertex]), reach, reach, found);
            float depth = 0.0F;
            for (std::size_t i = 0; i < count; ++i) {
                depth = std::max(depth, -found[i].distance);
            }
            deepest = std::max(deepest, depth);
            if (depth > 0.5F * margin && qEnvironmentVariableIsSet("PREVIEW_QUALITY_POINTS")) {
                const QVector3D p = frame.meshes[mesh].positions[vertex];
                QTextStream(stdout) << frame.time << " mesh " << mesh << " vertex " << vertex << " at " << p.x() << ' '
                                    << p.y() << ' ' << p.z() << " depth " << depth << '\n';
            }
            inside += depth > 0.01F ? 1 : 0;
        }
        return {double(deepest / margin), double(inside) / double(m_cloth.size()), false};
    }

private:
    std::vector<quint32> m_bases;
    std::vector<std::pair<std::size_t, quint32>> m_cloth;
    std::vector<quint32> m_bodyVertices;
    std::unique_ptr<Host::BodyCollider> m_body;
};

Result Play(Host::PreviewModel& model, Judge& judge, const Host::ClothValues& values, Host::MotionKind motion,
            double seconds)
{
    DemoPreview::SetValues(model, values);
    Host::ClothPreview preview(model);
    preview.SetMotion({motion, 0, true});
    Host::PreviewFrame frame;
    Result result;
    const int frames = int(std::lround(seconds / Host::ClothPreview::frameDuration));
    for (int i = 1; i <= frames; ++i) {
        preview.Step();
        preview.Read(frame);
        result.Take(judge.Look(frame, values.collision.rigidMargin, i % framesBetweenFar == 0));
        result.ranAway = result.ranAway || !preview.Problem().isEmpty();
    }
    return result;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addOption(
        {QStringLiteral("seconds"), QStringLiteral("of each run"), QStringLiteral("n"), QStringLiteral("10")});
    parser.addOption({QStringLiteral("preset"), QStringLiteral("only this one"), QStringLiteral("name")});
    parser.addOption({QStringLiteral("wind"), QStringLiteral("only this one"), QStringLiteral("name")});
    parser.addOption({QStringLiteral("motion"), QStringLiteral("only this one"), QStringLiteral("name")});
    parser.process(app);
    const auto isWanted = [&parser](const char* option, const QString& name) {
        const QString wanted = parser.value(QLatin1String(option));
        return wanted.isEmpty() || wanted == name;
    };

    std::vector<DemoPreview::Preset> cloths = DemoPreview::Presets(0);
    const std::vector<DemoPreview::Preset> hairs = DemoPreview::Presets(1);
    cloths.insert(cloths.end(), hairs.begin(), hairs.end());
    Host::PreviewModel model = Host::MakePreviewModel(
        DemoPreview::Character({QStringLiteral("Skirt"), QStringLiteral("Cape")}), DemoPreview::DecodeWeight);
    Judge judge(model);
    QTextStream out(stdout);
    out << QStringLiteral("%1 %2 ").arg(QStringLiteral("preset"), -10).arg(QStringLiteral("wind"), -8);
    for (const auto& motion : motions) {
        out << QStringLiteral("%1").arg(QLatin1String(motion.name), -20);
    }
    out << "(deepest in margins, vertices inside)\n";
    bool isGood = true;
    for (const auto& cloth : cloths) {
        for (const auto& wind : DemoPreview::Presets(2)) {
            if (!isWanted("preset", cloth.name) || !isWanted("wind", wind.name)) {
                continue;
            }
            out << QStringLiteral("%1 %2 ").arg(cloth.name, -10).arg(wind.name, -8);
            for (const auto& motion : motions) {
                if (isWanted("motion", QLatin1String(motion.name))) {
                    const Result result = Play(model, judge, DemoPreview::Combined(cloth, wind), motion.kind,
                                               parser.value(QStringLiteral("seconds")).toDouble());
                    isGood = isGood && result.IsGood();
                    out << QStringLiteral("%1 %2 % %3")
                               .arg(result.deepest, 5, 'f', 2)
                               .arg(100.0 * result.share, 6, 'f', 3)
                               .arg(QLatin1String(result.ranAway    ? "ran away"
                                                  : result.IsGood() ? "  "
                                                                    : "! "),
                                    -4);
                    out.flush();
                }
            }
            out << '\n';
            out.flush();
        }
    }
    return isGood ? 0 : 1;
}
