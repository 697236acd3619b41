#pragma once

#include "host/services/HostApplication.h"
#include "tests/support/TestCase.h"

#include <QTemporaryDir>

#include <memory>

/// A host with one object in its scene and a folder for image files.
class ImageTestCase : public TestCase
{
    Q_OBJECT

protected:
    void SetUp() override;
    void TearDown() override;

    QString PathOf(const QString& name) const { return m_folder->filePath(name); }
    /// Writes \p image into the folder, in the format of the name's suffix.
    QString ImageFile(const QString& name, const QImage& image) const;

    Host::Scene& CurrentScene() const { return m_host->CurrentScene(); }
    MV::CSceneService& Queries() const { return *m_host->GetSceneService(); }
    MV::CEditService& Edits() const { return *m_host->GetEditService(); }

    Host::WeightImage& Weight() const { return CurrentScene().FindSlot(m_address)->cloth.weight; }
    BF::Result Load(const QString& path) const { return Load(m_address, path); }
    BF::Result Load(const Host::ClothAddress& address, const QString& path) const;
    BF::Result Adjust(int brightness, int contrast, bool isFinal = true) const;
    BF::Result Delete() const;
    BF::Result Embed() const;
    MV::WeightImageState State() const;

    /// The picture of a handle at \p size; ends the test program when it cannot be had.
    QImage Render(BF::CHandle* thumbnail, const QSize& size, BF::CHandle* source = nullptr) const;
    BF::CHandle* WeightTexture() const;

    /// The box that whoever asked for something shows after a failure. It brings the host's reason into m_problems.
    void ShowBox() const;

    /// Handle of the only object, whose materials all have their slots.
    Host::Object& Hero() const { return *m_hero; }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Host::HostApplication> m_host;
    Host::Object* m_hero = nullptr;
    Host::ClothAddress m_address; ///< "Skin" on "Body".
    QStringList m_problems;       ///< What the host reported to the user.
};
