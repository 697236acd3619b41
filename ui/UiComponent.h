#pragma once

class CQtUiLoader;
class QWidget;

/// The widgets of one form, held as typed pointers.
///
/// A component owns nothing: the pointers are null until SetupUi() and belong to the loaded form afterwards. A widget
/// that the form lacks stays null. The order of the virtual functions is known to the host's SDK.
class CUiComponent
{
public:
    virtual ~CUiComponent();

    /// Looks up every widget and layout of the form by object name and stores the pointers.
    /// Names that the form lacks are left in the loader's list of unresolved names.
    virtual void SetupUi(CQtUiLoader& loader) = 0;

    /// The form's top widget; null before SetupUi().
    virtual QWidget* GetRootWidget() = 0;
};
