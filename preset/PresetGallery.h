#pragma once

#include <MVPluginQt/Result.h>

#include <QString>

class QListWidgetItem;
class QTabWidget;

namespace MV {

/// Gives the items of a preset gallery their thumbnails and profiles.
///
/// Each folder "N" of \p root fills the list in page N of \p tabs, and each image "P_name" in it the P-th item of that
/// list, counted from 1, whose profile is the file of the same name with the suffix "ini" beside the image. What fits
/// no page, list or item, or is no image, is skipped; whether the profiles exist is not checked. Lists with cells get
/// cells that their names fit into.
/// \return 0, with the first page current; or 0x80000003 for an empty \p root
BF::Result FillPresetGallery(const QString& root, QTabWidget& tabs);

/// The path of the profile of an item; empty for an item that got none, and for no item.
QString ProfileOf(const QListWidgetItem* item);

} // namespace MV
