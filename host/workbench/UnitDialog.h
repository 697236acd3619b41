#pragma once

#include "host/import/Units.h"

#include <QDialog>

class QComboBox;
class QLabel;

namespace Host {

/// Asks for the unit of a model whose file does not name one, and shows how large the model is in each.
class UnitDialog : public QDialog
{
    Q_OBJECT

public:
    /// \param file  the name of the model file
    /// \param size  the model's largest side in units of the file
    UnitDialog(const QString& file, double size, QWidget* parent = nullptr);

    /// The chosen unit; before anybody chose it is the guess from the size.
    LengthUnit Unit() const;

    /// Shows the dialog. \return none when the user cancelled
    static std::optional<LengthUnit> Choose(const QString& file, double size, QWidget* parent);

private:
    void ShowSize();

    double m_size;
    QComboBox* m_unit;
    QLabel* m_result;
};

} // namespace Host
