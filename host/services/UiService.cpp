#include "host/services/UiService.h"

#include "host/services/ImageEditor.h"
#include "host/services/UserDialogs.h"

namespace Host {

namespace {

/// What a box says: what the plug-in has to say, if anything, and below it why.
QString TextWithReason(const QString& text, const QString& reason)
{
    return text.isEmpty() || reason.isEmpty() ? text + reason : text + QStringLiteral("\n\n") + reason;
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
    return RecordValue("ShowMessageBox", {In(text), In(title), In(parent), In(icon), In(buttons), In(defaultButton)},
                       [&] {
                           const QString reason = App().TakeReason(); // explains the next box or none
                           const UserQuestion question{title, TextWithReason(text, reason), QMessageBox::Icon(icon),
                                                       QMessageBox::StandardButtons(buttons),
                                                       QMessageBox::StandardButton(defaultButton)};
                           const auto prepared = App().Answers().TakeButton();
                           if (!prepared && !App().Answers().unattended) {
                               return int(AskUser(parent, question));
                           }
                           if (!reason.isNull()) {
                               App().TellProblem(reason); // no box shows it
                           }
                           return prepared.value_or(int(question.EscapeAnswer()));
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
