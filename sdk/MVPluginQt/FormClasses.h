#pragma once

class QLayout;
class QString;
class QWidget;

namespace MV::Internal {

/// A new widget of a class that a form names: one of the host's, or one of those of Qt's that the panel's forms use.
/// \param baseClass  what is made, after a warning, when there is no such class
/// \return null when there is no such base class either
QWidget* CreateFormWidget(const QString& className, const QString& baseClass, QWidget* parent);

/// A new layout of a class that a form names; null, after a warning, when there is no such class.
QLayout* CreateFormLayout(const QString& className);

} // namespace MV::Internal
