#include "host/services/UiService.h"

#include "host/services/ImageEditor.h"

#include <QMessageBox>

namespace Host {

namespace {

/// What closing a box without a choice counts as: Cancel where there is one.
int EscapeAnswer(int buttons)
{
    return (buttons & QMessageBox::Cancel) != 0 ? int(QMessageBox::Cancel) : int(QMessageBox::Ok);
}

int AskUser(const QString& text, const QString& title, QWidget* parent, int icon, int buttons, int defaultButton)
{
    QMessageBox box(QMessageBox::Icon(icon), title, text, QMessageBox::StandardButtons(buttons), parent);
    if (defaultButton != 0) {
        box.setDefaultButton(QMessageBox::StandardButton(defaultButton));
    }
    return box.exec();
}

} // namespace

UiService::UiService(HostApplication& host)
    : ServiceBase(host, "Ui")
{
}

BF::Result UiService::ChangePickMode(MV::EPickMode mode)
{
    return Record("ChangePickMode", {In(mode)}, [&] {
        App().SetPickMode(mode);
        return BF::Results::Success;
    });
}

BF::Result UiService::CancelPickMode()
{
    return Record("CancelPickMode", {}, [&] {
        App().SetPickMode(MV::EPickMode::None);
        return BF::Results::Success;
    });
}

BF::Result UiService::SetDialogMode(MV::EDialogMode mode)
{
    return Record("SetDialogMode", {In(mode)}, [&] {
        App().SetDialogMode(mode);
        return BF::Results::Success;
    });
}

BF::Result UiService::RefreshScene(int flag)
{
    return Record("RefreshScene", {In(flag)}, [&] {
        Q_EMIT App().SceneRefreshRequested();
        return BF::Results::Success;
    });
}

BF::Result UiService::LaunchImageEditor(const BF::CArrayList<std::wstring>& files)
{
    return Record("LaunchImageEditor", {In(files)}, [&] {
        QStringList paths;
        for (const std::wstring& file : files) {
            paths.append(QString::fromStdWString(file));
        }
        return App().Editor().Launch(paths);
    });
}

int UiService::ShowMessageBox(const QString& text, const QString& title, QWidget* parent, int icon, int buttons,
                              int defaultButton)
{
    return RecordValue(
        "ShowMessageBox", {In(text), In(title), In(parent), In(icon), In(buttons), In(defaultButton)}, [&] {
            if (const auto prepared = App().Answers().TakeButton()) {
                return *prepared;
            }
            return App().Answers().unattended ? EscapeAnswer(buttons)
                                              : AskUser(text, title, parent, icon, buttons, defaultButton);
        });
}

BF::Result UiService::ShowPanelPage(int page, int order, int flags)
{
    return Record("ShowPanelPage", {In(page), In(order), In(flags)}, [&] {
        Q_EMIT App().PanelPageRequested(page, order, flags);
        return BF::Results::Success;
    });
}

} // namespace Host
