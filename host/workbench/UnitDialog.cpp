#include "host/workbench/UnitDialog.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPointer>

namespace Host {

UnitDialog::UnitDialog(const QString& file, double size, QWidget* parent)
    : QDialog(parent)
    , m_size(size)
    , m_unit(new QComboBox)
    , m_result(new QLabel)
{
    setObjectName(QStringLiteral("unitDialog"));
    setWindowTitle(tr("Import Model"));
    auto* question = new QLabel(tr("\"%1\" does not say in which unit it was made.").arg(file));
    question->setWordWrap(true);
    m_unit->setObjectName(QStringLiteral("unitControl"));
    for (const LengthUnit& unit : LengthUnits()) {
        m_unit->addItem(unit.Name(), unit.key);
    }
    m_unit->setCurrentIndex(m_unit->findData(GuessUnit(size).key));
    m_result->setObjectName(QStringLiteral("unitResult"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto* form = new QFormLayout(this);
    form->addRow(question);
    form->addRow(tr("&Unit of the file"), m_unit);
    form->addRow(tr("Largest side"), m_result);
    form->addRow(buttons);
    connect(m_unit, qOverload<int>(&QComboBox::currentIndexChanged), this, &UnitDialog::ShowSize);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    ShowSize();
}

LengthUnit UnitDialog::Unit() const
{
    return *UnitCalled(m_unit->currentData().toString());
}

std::optional<LengthUnit> UnitDialog::Choose(const QString& file, double size, QWidget* parent)
{
    // Closing the window behind it destroys the dialog as well.
    const QPointer<UnitDialog> dialog = new UnitDialog(file, size, parent);
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog;
    const std::optional<LengthUnit> unit = isAccepted ? std::make_optional(dialog->Unit()) : std::nullopt;
    delete dialog;
    return unit;
}

void UnitDialog::ShowSize()
{
    m_result->setText(tr("%1 cm in the scene").arg(QLocale().toString(m_size * Unit().centimetres, 'g', 4)));
}

} // namespace Host
