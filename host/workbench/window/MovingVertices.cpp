#include "host/workbench/window/MovingVertices.h"

#include "host/services/HostApplication.h"
#include "host/services/WeightImages.h"

namespace Host {

MovingVertices::MovingVertices(HostApplication& host, QWidget* parent)
    : QLabel(parent)
    , m_host(host)
{
    setObjectName(QStringLiteral("movingVertices"));
    setToolTip(tr("How many vertices of the chosen material the weight image lets move. More than %L1 are slow to "
                  "simulate.")
                   .arg(WeightImages::mostMovingVertices));
    m_later.setSingleShot(true);
    connect(&m_later, &QTimer::timeout, this, &MovingVertices::Count);
    const auto countSoon = [this] { m_later.start(); };
    connect(&host, &HostApplication::ClothRead, this, [this](const ClothAddress& address) {
        m_shown = address;
        m_later.start();
    });
    connect(&host, &HostApplication::SceneReplaced, this, &MovingVertices::ConnectScene);
    connect(&host, &HostApplication::SceneRefreshRequested, this, countSoon);
    ConnectScene();
}

void MovingVertices::ConnectScene()
{
    const auto countSoon = [this] { m_later.start(); };
    const Scene& scene = m_host.CurrentScene();
    connect(&scene, &Scene::EditApplied, this, countSoon);
    connect(&scene, &Scene::SelectionChanged, this, countSoon);
    m_later.start();
}

void MovingVertices::Count()
{
    const Scene& scene = m_host.CurrentScene();
    const bool isShown = scene.Selection() == QVector<BF::CHandle*>{m_shown.object};
    const std::optional<int> moving = isShown ? m_host.Weights().MovingVertices(m_shown) : std::nullopt;
    setText(moving ? tr("%1: %L2 of %L3 vertices move")
                         .arg(scene.FindMaterial(m_shown.material)->name)
                         .arg(*moving)
                         .arg(WeightImages::mostMovingVertices)
                   : QString());
}

} // namespace Host
