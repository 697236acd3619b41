#include "host/services/HostApplication.h"
#include "host/viewport/GlProbe.h"
#include "host/viewport/ModelProgram.h"
#include "host/viewport/ModelShaders.h"
#include "host/viewport/Renderer.h"
#include "host/viewport/ViewportWidget.h"
#include "tests/bench/Report.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMainWindow>
#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>
#include <QPainter>
#include <QTemporaryDir>

#include <cmath>
#include <ctime>

// The view of a model of 200,000 triangles beside a bare program that draws the same triangles with the same shader.

namespace {

constexpr int side = 317; ///< Squares along each side of the sheet, of two triangles each.
constexpr QSize size(1024, 768);

Host::Object Sheet(const QString& texture)
{
    Host::Object object;
    object.name = QStringLiteral("Sheet");
    object.materials.resize(1);
    object.materials[0].name = QStringLiteral("Silk");
    object.materials[0].textures[MV::ETextureChannel::Diffuse].filePath = texture;
    Host::Mesh mesh;
    Host::MaterialSlot slot;
    slot.material = 1;
    for (int y = 0; y <= side; ++y) {
        for (int x = 0; x <= side; ++x) {
            const float u = float(x) / side;
            const float v = float(y) / side;
            mesh.positions.emplace_back(u * 160.0F, v * 120.0F, 8.0F * std::sin(u * 30.0F) * std::cos(v * 17.0F));
            mesh.uvs.emplace_back(u, v);
            if (x < side && y < side) {
                const auto corner = quint32(y * (side + 1) + x);
                const auto above = corner + side + 1;
                slot.indices.insert(slot.indices.end(), {corner, corner + 1, above + 1, corner, above + 1, above});
            }
        }
    }
    mesh.materialSlots.push_back(std::move(slot));
    object.meshes.push_back(std::move(mesh));
    return object;
}

QString WriteTexture(const QTemporaryDir& folder)
{
    constexpr int pixels = 1024;
    constexpr int square = 32;
    QImage image(pixels, pixels, QImage::Format_RGB32);
    image.fill(QColor(190, 60, 50));
    QPainter painter(&image);
    for (int y = 0; y < pixels; y += square) {
        for (int x = y % (2 * square); x < pixels; x += 2 * square) {
            painter.fillRect(x, y, square, square, QColor(240, 230, 210));
        }
    }
    painter.end();
    const QString file = folder.filePath(QStringLiteral("checks.png"));
    image.save(file);
    return file;
}

/// Draws the triangles and nothing else.
class BareProgram
{
public:
    BareProgram(const Host::MeshGeometry& geometry, const QImage& image)
        : m_program(Host::Shaders::DiffuseImage)
        , m_texture(image.mirrored())
        , m_count(int(geometry.indices.size()))
    {
        m_texture.setMinMagFilters(QOpenGLTexture::LinearMipMapLinear, QOpenGLTexture::Linear);
        m_arrays.create();
        m_arrays.bind();
        Fill(m_positions, geometry.positions, 0, 3);
        Fill(m_normals, geometry.normals, 1, 3);
        Fill(m_uvs, geometry.uvs, 2, 2);
        m_indices.create();
        m_indices.bind();
        m_indices.allocate(geometry.indices.data(), int(geometry.indices.size() * sizeof(quint32)));
        m_arrays.release();
        QOpenGLFramebufferObjectFormat format;
        format.setAttachment(QOpenGLFramebufferObject::Depth);
        format.setInternalTextureFormat(GL_RGBA8);
        format.setSamples(4);
        m_frame = std::make_unique<QOpenGLFramebufferObject>(size, format);
    }

    void Draw(const Host::Camera& camera, const QOpenGLFramebufferObject& target)
    {
        QOpenGLExtraFunctions& gl = *QOpenGLContext::currentContext()->extraFunctions();
        m_frame->bind();
        gl.glViewport(0, 0, size.width(), size.height());
        gl.glClearColor(0.2F, 0.2F, 0.2F, 0.0F);
        gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        gl.glEnable(GL_DEPTH_TEST);
        m_program.Bind({camera.ViewMatrix(), camera.ProjectionMatrix()});
        m_program.SetSurface({});
        m_texture.bind(0);
        m_arrays.bind();
        gl.glDrawElements(GL_TRIANGLES, m_count, GL_UNSIGNED_INT, nullptr);
        m_arrays.release();
        QOpenGLFramebufferObject::blitFramebuffer(const_cast<QOpenGLFramebufferObject*>(&target), m_frame.get());
        gl.glFinish();
    }

private:
    template <class Value>
    static void Fill(QOpenGLBuffer& buffer, const std::vector<Value>& values, unsigned attribute, int parts)
    {
        buffer.create();
        buffer.bind();
        buffer.allocate(values.data(), int(values.size() * sizeof(Value)));
        QOpenGLExtraFunctions& gl = *QOpenGLContext::currentContext()->extraFunctions();
        gl.glEnableVertexAttribArray(attribute);
        gl.glVertexAttribPointer(attribute, parts, GL_FLOAT, GL_FALSE, 0, nullptr);
    }

    Host::ModelProgram m_program;
    QOpenGLTexture m_texture;
    QOpenGLVertexArrayObject m_arrays;
    QOpenGLBuffer m_positions{QOpenGLBuffer::VertexBuffer};
    QOpenGLBuffer m_normals{QOpenGLBuffer::VertexBuffer};
    QOpenGLBuffer m_uvs{QOpenGLBuffer::VertexBuffer};
    QOpenGLBuffer m_indices{QOpenGLBuffer::IndexBuffer};
    std::unique_ptr<QOpenGLFramebufferObject> m_frame;
    int m_count;
};

/// Compares the drawing alone, with nothing of a window.
void CompareDrawing(Bench::Report& report, const QString& name, Host::ViewportWidget& view, const QString& texture,
                    std::optional<double> bound)
{
    view.makeCurrent();
    {
        Host::Renderer renderer;
        Host::Camera camera;
        camera.SetSize(size);
        camera.SetReach(view.Shown().BoundsOfAll());
        camera.Frame(view.Shown().BoundsOfAll());
        BareProgram bare(*view.Shown().Meshes().front().geometry, QImage(texture));
        QOpenGLFramebufferObject target(size, QOpenGLFramebufferObject::NoAttachment, GL_TEXTURE_2D, GL_RGBA8);
        while (!renderer.Draw(view.Shown(), camera, target.handle(), size, 1.0)) {
        }
        constexpr QPointF drag(3.0, 0.0);
        Host::Camera bareCamera = camera;
        const auto draw = [&] {
            camera.Orbit(drag);
            renderer.Draw(view.Shown(), camera, target.handle(), size, 1.0);
            QOpenGLContext::currentContext()->functions()->glFinish();
        };
        const auto drawBare = [&] {
            bareCamera.Orbit(drag);
            bare.Draw(bareCamera, target);
        };
        constexpr int repetitions = 31;
        report.Compare(name, {draw}, {drawBare}, bound, repetitions);
    }
    view.doneCurrent();
}

/// Waits until the view is on the screen once more.
void AwaitFrame(Host::ViewportWidget& view)
{
    bool isDone = false;
    const auto connection = QObject::connect(&view, &QOpenGLWidget::frameSwapped, [&isDone] { isDone = true; });
    while (!isDone) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QObject::disconnect(connection);
}

/// What the user waits for, in the window.
void MeasureWindow(Bench::Report& report, Host::HostApplication& host, Host::ViewportWidget& view,
                   const QString& texture)
{
    QElapsedTimer timer;
    timer.start();
    host.AddModel(Sheet(texture));
    view.Shown().Refresh();
    AwaitFrame(view);
    report.Count(QStringLiteral("ms from the import to the first picture"), int(timer.elapsed()), 1500);
    for (int uploads = -1; uploads != view.UploadCount();) {
        uploads = view.UploadCount();
        view.update();
        AwaitFrame(view);
    }
    constexpr int frames = 30;
    // Time of the processor on all threads, which other programs do not change: 83 ms of one core are 12 frames a
    // second.
    const std::clock_t begin = std::clock();
    for (int i = 0; i < frames; ++i) {
        QKeyEvent turn(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &turn);
        AwaitFrame(view);
    }
    const double seconds = double(std::clock() - begin) / CLOCKS_PER_SEC;
    report.Count(QStringLiteral("ms of the processor a frame in the window"), int(seconds * 1000.0 / frames), 83);

    constexpr int picks = 1000;
    view.At({1.0, 1.0});
    timer.restart();
    for (int i = 0; i < picks; ++i) {
        view.At({double(i), double(i) * 0.75});
    }
    report.Count(QStringLiteral("us a pick"), int(timer.nsecsElapsed() / 1000 / picks), 1000);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (!Host::HasViewportGl()) {
        qCritical("There is no OpenGL 3.3 on this display");
        return 1;
    }
    const QTemporaryDir folder;
    const QString texture = WriteTexture(folder);
    Host::HostApplication host;
    QMainWindow window;
    auto* view = new Host::ViewportWidget(host, &window);
    window.setCentralWidget(view);
    window.resize(size);
    window.show();
    AwaitFrame(*view);

    Bench::Report report(QStringLiteral("view of the model"));
    MeasureWindow(report, host, *view, texture);
    CompareDrawing(report, QStringLiteral("a frame, the object selected"), *view, texture, {});
    host.Select({});
    view->Shown().Refresh();
    CompareDrawing(report, QStringLiteral("a frame"), *view, texture, 1.1);
    return report.Print();
}
