#pragma once

#include <QBitArray>
#include <QPointer>
#include <QVector>
#include <QWidget>

#include <initializer_list>

/// Keeps widgets silent while they are set from host values.
///
/// Every added widget's signals are blocked at once; the destructor gives each widget its earlier state back, in
/// reverse order of addition. A null widget is skipped, and so is one that was destroyed in between.
class CSignalBlocker
{
public:
    CSignalBlocker() = default;
    explicit CSignalBlocker(std::initializer_list<QWidget*> widgets);
    ~CSignalBlocker();

    Q_DISABLE_COPY_MOVE(CSignalBlocker)

    /// Blocks the signals of \p widget and remembers whether they were blocked before. A widget may be added again.
    void Add(QWidget* widget);

private:
    QVector<QPointer<QWidget>> m_widgets;
    QBitArray m_wasBlocked;
};
