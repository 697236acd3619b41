#pragma once

#include "BFQtCustomWidgetPluginU/Export.h"

#include <QLabel>

#include <functional>

class QMimeData;

/// A picture that can be selected and that takes image files: dropped on it, or asked for with a double click.
class BFQTCUSTOMWIDGETPLUGINU_EXPORT QItemLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(bool selected READ IsSelected WRITE SetSelected)
    Q_PROPERTY(QString fileFilter READ FileFilter WRITE SetFileFilter)

public:
    explicit QItemLabel(QWidget* parent = nullptr);

    bool IsSelected() const { return m_selected; }
    /// Shows the label with or without the frame of a selected item; emits nothing.
    void SetSelected(bool selected);

    const QString& FileFilter() const { return m_fileFilter; }
    /// File name suffixes that are taken, separated by blanks: "jpg jpeg bmp". Empty takes every file.
    void SetFileFilter(const QString& filter);

    /// What a double click calls for a file name; an empty one is none. Without a functor a double click does nothing.
    void SetGetOpenFileNameFunctor(std::function<QString()> functor);

Q_SIGNALS:
    /// The user clicked the label, or pressed Space or Return on it.
    void SelectedChanged();
    /// A file was dropped or chosen and passes the filter.
    void PreImageLoaded(QString path);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool PassesFilter(const QString& path) const;
    /// The one local file of \p mime that passes the filter; empty for anything else.
    QString FileOf(const QMimeData* mime) const;

    bool m_selected = false;
    QString m_fileFilter;
    std::function<QString()> m_getOpenFileName;
};
