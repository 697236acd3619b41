#include "host/viewport/ViewportWidget.h"

#include "host/services/HostApplication.h"
#include "host/viewport/GlProbe.h"
#include "host/viewport/Grid.h"
#include "host/viewport/Renderer.h"
#include "host/viewport/ViewActions.h"
#include "host/viewport/ViewTexts.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QWheelEvent>

#include <utility>

namespace Host {

ViewportWidget::ViewportWidget(HostApplication& host, QWidget* parent)
    : QOpenGLWidget(parent)
    , m_host(host)
    , m_scene(host)
    , m_actions(new ViewActions(*this))
    , m_texts(new ViewTexts(*this))
{
    setObjectName(QStringLiteral("viewport"));
    setAccessibleName(tr("View of the model"));
    setFormat(ViewportFormat());
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    grabGesture(Qt::PinchGesture);
    constexpr int least = 80;
    setMinimumSize(least, least);
    connect(&m_scene, &ViewedScene::Changed, this, [this] {
        m_camera.SetReach(m_scene.BoundsOfAll());
        ShowProblems();
        Show();
    });
    connect(&m_scene, &ViewedScene::ObjectsCame, this, &ViewportWidget::FrameAll);
    connect(&host, &HostApplication::StateChanged, this, [this] {
        if (!IsPicking()) {
            PointAt(std::nullopt);
        }
    });
    ConnectActions();
}

ViewportWidget::~ViewportWidget()
{
    DropRenderer();
    // The context ends with the base class, when this is a view no more.
    if (const QOpenGLContext* const current = context()) {
        disconnect(current, &QOpenGLContext::aboutToBeDestroyed, this, &ViewportWidget::DropRenderer);
    }
}

void ViewportWidget::ConnectActions()
{
    const auto look = [this](QAction* action, Camera::View view) {
        connect(action, &QAction::triggered, this, [this, view] {
            m_camera.Look(view);
            Show();
        });
    };
    look(m_actions->Front(), Camera::View::Front);
    look(m_actions->Side(), Camera::View::Side);
    look(m_actions->Top(), Camera::View::Top);
    connect(m_actions->FrameAll(), &QAction::triggered, this, &ViewportWidget::FrameAll);
    connect(m_actions->FrameSelection(), &QAction::triggered, this, [this] {
        const Bounds selection = m_scene.BoundsOfSelection();
        m_camera.Frame(selection.isEmpty ? m_scene.BoundsOfAll() : selection);
        Show();
    });
    connect(m_actions->ShowWeights(), &QAction::toggled, this, [this](bool areShown) {
        m_texts->ShowLegend(areShown);
        m_scene.ShowWeights(areShown);
    });
}

// --- drawing ---

void ViewportWidget::initializeGL()
{
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &ViewportWidget::DropRenderer);
    m_renderer = std::make_unique<Renderer>();
}

/// What is on the graphics processor goes with the context, which is another one after the view has moved to another
/// window.
void ViewportWidget::DropRenderer()
{
    if (m_renderer) {
        makeCurrent();
        m_renderer.reset();
        doneCurrent();
    }
}

void ViewportWidget::resizeGL(int width, int height)
{
    m_camera.SetSize(QSizeF(width, height));
    m_texts->ShowScale(GridSpacing(m_camera));
}

void ViewportWidget::paintGL()
{
    if (!m_renderer) {
        return;
    }
    const double scale = devicePixelRatioF();
    m_renderer->Point(m_pointedMesh, m_pointedMaterial);
    if (!m_renderer->Draw(m_scene, m_camera, defaultFramebufferObject(), size() * scale, scale)) {
        update();
    }
    const int uploads = m_renderer->UploadCount();
    if (std::exchange(m_shownUploads, uploads) != uploads) {
        // Not while painting: the texts are widgets.
        QMetaObject::invokeMethod(this, &ViewportWidget::ShowProblems, Qt::QueuedConnection);
    }
}

int ViewportWidget::UploadCount() const
{
    return m_renderer ? m_renderer->UploadCount() : 0;
}

void ViewportWidget::Show()
{
    m_texts->ShowScale(GridSpacing(m_camera));
    update();
}

void ViewportWidget::ShowProblems()
{
    m_texts->ShowProblems(m_scene.Problems());
}

void ViewportWidget::FrameAll()
{
    m_camera.Frame(m_scene.BoundsOfAll());
    Show();
}

void ViewportWidget::TakeOver(const ViewportWidget& other)
{
    m_scene.Refresh();
    m_actions->ShowWeights()->setChecked(other.m_actions->ShowWeights()->isChecked());
    m_camera = other.m_camera;
    m_camera.SetSize(size());
    Show();
}

// --- moving the camera ---

bool ViewportWidget::event(QEvent* event)
{
    if (PinchCamera(m_camera, *event)) {
        Show();
        return true;
    }
    return QOpenGLWidget::event(event);
}

void ViewportWidget::wheelEvent(QWheelEvent* event)
{
    WheelCamera(m_camera, *event);
    Show();
}

void ViewportWidget::keyPressEvent(QKeyEvent* event)
{
    if (TurnCameraByKey(m_camera, event->key(), event->modifiers())) {
        Show();
    } else {
        QOpenGLWidget::keyPressEvent(event);
    }
}

void ViewportWidget::mousePressEvent(QMouseEvent* event)
{
    m_drag = DragOf(event->button(), event->modifiers());
    m_dragged = m_pressed = event->pos();
    m_mayClick = event->button() == Qt::LeftButton && m_drag == Drag::None;
}

void ViewportWidget::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint moved = event->pos() - std::exchange(m_dragged, event->pos());
    if (event->buttons() == Qt::NoButton) {
        PointAt(IsPicking() ? At(event->pos()) : std::nullopt);
    } else if (m_drag != Drag::None) {
        DragCamera(m_camera, m_drag, moved);
        Show();
    }
}

void ViewportWidget::mouseReleaseEvent(QMouseEvent* event)
{
    m_drag = Drag::None;
    const bool isNear = (event->pos() - m_pressed).manhattanLength() < QApplication::startDragDistance();
    if (std::exchange(m_mayClick, false) && event->button() == Qt::LeftButton && isNear) {
        Click(m_pressed, event->modifiers());
    }
}

void ViewportWidget::leaveEvent(QEvent* event)
{
    PointAt(std::nullopt);
    QOpenGLWidget::leaveEvent(event);
}

void ViewportWidget::contextMenuEvent(QContextMenuEvent* event)
{
    // With Alt the right button zooms.
    if (event->reason() == QContextMenuEvent::Mouse && event->modifiers().testFlag(Qt::AltModifier)) {
        return;
    }
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("viewportMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addActions(actions());
    menu->popup(event->globalPos());
}

// --- what is under the pointer ---

std::optional<RayHit> ViewportWidget::At(const QPointF& pixel)
{
    return m_rays.Find(m_scene, m_camera.RayThrough(pixel));
}

bool ViewportWidget::IsPicking() const
{
    return m_host.CurrentScene().pickMode == MV::EPickMode::Material;
}

void ViewportWidget::PointAt(const std::optional<RayHit>& hit)
{
    const Id mesh = hit ? hit->mesh : 0;
    const Id material = hit ? hit->material : 0;
    if (m_pointedMesh == mesh && m_pointedMaterial == material) {
        return;
    }
    m_pointedMesh = mesh;
    m_pointedMaterial = material;
    const Scene& scene = m_host.CurrentScene();
    const Material* found = scene.FindMaterial(material);
    m_texts->ShowPointed(found ? tr("%1 (%2)").arg(found->name, scene.FindMesh(mesh)->name) : QString());
    update();
}

void ViewportWidget::Click(const QPoint& pixel, Qt::KeyboardModifiers modifiers)
{
    // What is seen may not be what there is any more.
    m_scene.Refresh();
    const std::optional<RayHit> hit = At(pixel);
    if (modifiers.testFlag(Qt::ControlModifier)) {
        QVector<BF::CHandle*> selection = m_host.CurrentScene().Selection();
        if (hit && selection.removeAll(hit->object) == 0) {
            selection.append(hit->object);
        }
        m_host.Select(selection);
    } else if (hit) {
        ClickObject(*hit);
    } else if (!IsPicking()) {
        m_host.Select({});
    }
}

void ViewportWidget::ClickObject(const RayHit& hit)
{
    const QVector<BF::CHandle*> only{hit.object};
    const bool hasSelected = m_host.CurrentScene().Selection() != only;
    m_host.Select(only);
    // Whoever heard of that may have changed anything.
    const Scene& scene = m_host.CurrentScene();
    const Object* object = scene.FindObject(hit.object);
    const std::optional<std::size_t> material = object ? scene.PositionOfMaterial(*object, hit.material) : std::nullopt;
    if (material && scene.Selection() == only) {
        m_host.Click(hit.object, int(*material), hasSelected);
    }
}

} // namespace Host
