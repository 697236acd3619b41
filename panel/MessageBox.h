#pragma once

#include <QString>

class QWidget;

/// The panel's message boxes, which the host shows. Each one is a nested event loop: whatever the caller knew of the
/// scene, of the selection and of its own life is to be looked up again afterwards.
namespace MV {

class CMoviraInterface;

inline constexpr int messageIcon = 2;
inline constexpr int okButton = 0x400;
inline constexpr int okAndCancelButtons = 0x400400;

/// The title of the panel's message boxes.
QString MessageTitle();

/// Tells the user something; the box has Ok only.
void ShowInformation(CMoviraInterface& host, const QString& text, const QString& title, QWidget* parent);

/// Asks the user; Ok is the default. \return whether the answer was Ok
bool AskOkOrCancel(CMoviraInterface& host, const QString& text, const QString& title, QWidget* parent);

} // namespace MV
