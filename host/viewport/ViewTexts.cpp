#include "host/viewport/ViewTexts.h"

#include "host/viewport/Legend.h"

#include <QGridLayout>
#include <QLabel>
#include <QLocale>

namespace Host {

namespace {

QLabel* NewLabel(QWidget& view, const char* name)
{
    auto* label = new QLabel(&view);
    label->setObjectName(QLatin1String(name));
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->setTextFormat(Qt::PlainText);
    label->setStyleSheet(QStringLiteral("color: #d8d8d8; background: rgba(30, 30, 32, 150); padding: 2px 6px;"));
    label->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);
    label->hide();
    return label;
}

void ShowText(QLabel* label, const QString& text)
{
    if (label && label->text() != text) {
        label->setText(text);
        label->setVisible(!text.isEmpty());
    }
}

} // namespace

ViewTexts::ViewTexts(QWidget& view)
    : QObject(&view)
    , m_scale(NewLabel(view, "gridScale"))
    , m_pointed(NewLabel(view, "pointedMaterial"))
    , m_problems(NewLabel(view, "viewProblems"))
    , m_legend(new Legend(&view))
{
    m_legend->hide();
    m_problems->setWordWrap(true);
    constexpr int margin = 8;
    auto* layout = new QGridLayout(&view);
    layout->setContentsMargins(margin, margin, margin, margin);
    // The texts take the room that there is; a small view is not kept from being small.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(m_problems, 0, 0, Qt::AlignLeft | Qt::AlignTop);
    layout->addWidget(m_legend, 0, 1, Qt::AlignRight | Qt::AlignTop);
    layout->addWidget(m_scale, 1, 0, Qt::AlignLeft | Qt::AlignBottom);
    layout->addWidget(m_pointed, 1, 1, Qt::AlignRight | Qt::AlignBottom);
    layout->setColumnStretch(0, 1);
    layout->setRowStretch(0, 1);
}

void ViewTexts::ShowScale(double centimetres)
{
    if (m_shownScale != centimetres) {
        m_shownScale = centimetres;
        ShowText(m_scale, tr("Grid: %1 cm").arg(QLocale().toString(centimetres, 'g', 6)));
    }
}

void ViewTexts::ShowPointed(const QString& name)
{
    ShowText(m_pointed, name);
}

void ViewTexts::ShowProblems(const QString& sentences)
{
    ShowText(m_problems, sentences);
}

void ViewTexts::ShowLegend(bool isShown)
{
    if (m_legend) {
        m_legend->setVisible(isShown);
    }
}

} // namespace Host
