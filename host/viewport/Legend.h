#pragma once

#include <QWidget>

namespace Host {

/// Says which colour stands for which weight, beside the model.
class Legend : public QWidget
{
    Q_OBJECT

public:
    explicit Legend(QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_held;
    QString m_free;
    QString m_none;
};

} // namespace Host
