#pragma once

#include <QString>

namespace Host {

class HostApplication;

/// What the user can do when the panel shows nothing, in a sentence or two.
QString PanelHint(const HostApplication& host);

} // namespace Host
