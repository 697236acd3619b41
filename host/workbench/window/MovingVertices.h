#pragma once

#include "host/scene/SceneEdit.h"

#include <QLabel>
#include <QTimer>

namespace Host {

class HostApplication;

/// Says how many vertices move under the weight image of the material that the panel shows, and how many are wise.
/// Empty without an image.
class MovingVertices : public QLabel
{
    Q_OBJECT

public:
    explicit MovingVertices(HostApplication& host, QWidget* parent = nullptr);

private:
    void ConnectScene();
    void Count();

    HostApplication& m_host;
    ClothAddress m_shown;
    QTimer m_later; ///< Counting can wait until the panel has read everything.
};

} // namespace Host
