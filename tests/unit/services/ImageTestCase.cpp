#include "tests/unit/services/ImageTestCase.h"

#include "plugin/services/EditService.h"
#include "plugin/services/FileService.h"
#include "plugin/services/SceneService.h"
#include "plugin/services/UiService.h"
#include "tests/support/SampleImages.h"
#include "tests/support/SampleModels.h"

void ImageTestCase::SetUp()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
    m_host = std::make_unique<Host::HostApplication>();
    m_host->Answers().unattended = true;
    m_hero = &CurrentScene().AddObject(SampleModels::Hero());
    m_address = Host::Scene::SlotsOf(*m_hero).front();
    m_problems.clear();
    connect(m_host.get(), &Host::HostApplication::ProblemTold, this,
            [this](const QString& sentence) { m_problems.append(sentence); });
}

void ImageTestCase::TearDown()
{
    m_host.reset();
    m_folder.reset();
}

QString ImageTestCase::ImageFile(const QString& name, const QImage& image) const
{
    return SampleImages::WriteImage(PathOf(name), image);
}

BF::Result ImageTestCase::Load(const Host::ClothAddress& address, const QString& path) const
{
    return m_host->GetFileService()->LoadWeightImage(address.object, address.mesh, address.material,
                                                     path.toStdWString(), 2);
}

BF::Result ImageTestCase::Adjust(int brightness, int contrast, bool isFinal) const
{
    return Edits().SetWeightImageAdjust(m_address.object, m_address.mesh, m_address.material, {0, brightness, contrast},
                                        isFinal, isFinal);
}

BF::Result ImageTestCase::Delete() const
{
    return Edits().DeleteWeightImage(m_address.object, m_address.mesh, m_address.material);
}

BF::Result ImageTestCase::Embed() const
{
    return Edits().EmbedWeightImage(m_address.object, m_address.mesh, m_address.material);
}

void ImageTestCase::ShowBox() const
{
    m_host->GetUiService()->ShowMessageBox(QStringLiteral("It failed."), {}, nullptr, 2, 0x400, 0);
}

MV::WeightImageState ImageTestCase::State() const
{
    MV::WeightImageState state;
    const BF::Result known = Queries().GetWeightImageState(m_address.object, m_address.mesh, m_address.material, state);
    return known.IsSuccess() ? state : MV::WeightImageState();
}

QImage ImageTestCase::Render(BF::CHandle* thumbnail, const QSize& size, BF::CHandle* source) const
{
    QImage image(1, 1, QImage::Format_ARGB32);
    if (!Queries().RenderThumbnail(size.width(), size.height(), thumbnail, source, image).IsSuccess()) {
        qFatal("the thumbnail cannot be drawn");
    }
    return image;
}

BF::CHandle* ImageTestCase::WeightTexture() const
{
    BF::CHandle* texture = nullptr;
    Queries().GetWeightTexture(m_address.object, m_address.mesh, m_address.material, texture);
    return texture;
}
