#include "host/workbench/tour/Tour.h"

#include "host/workbench/tour/TourHands.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

namespace Host {

namespace {

void Tell(const QString& text)
{
    QTextStream(stderr) << text << Qt::endl;
}

bool SaveJournal(const CallJournal& journal, const QString& path)
{
    QFile file(path);
    const QByteArray text = journal.ToText().toUtf8();
    const bool saved = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
    if (!saved) {
        Tell(QStringLiteral("%1: %2").arg(path, file.errorString()));
    }
    return saved;
}

/// Takes the step unless an earlier one failed, on which it would build. \return whether it held
bool TakeStep(TourHands& hands, const TourStep& step, bool mayRun)
{
    hands.BeginStep(step.name);
    QString problem = mayRun ? step.run() : QStringLiteral("not reached");
    if (mayRun && problem.isEmpty()) {
        problem = hands.CheckMessages();
    }
    if (!hands.TakePictures() && problem.isEmpty()) {
        problem = QStringLiteral("no picture could be written");
    }
    const QString name = QLatin1String(step.name);
    Tell(problem.isEmpty() ? QStringLiteral("ok     %1").arg(name)
                           : QStringLiteral("FAILED %1: %2").arg(name, problem));
    return problem.isEmpty();
}

} // namespace

bool RunTour(MainWindow& window, const QString& folder)
{
    if (!QDir().mkpath(folder)) {
        Tell(QStringLiteral("%1 cannot be made").arg(folder));
        return false;
    }
    TourHands hands(window, QDir(folder).absolutePath()); // a file dialog has a folder of its own
    bool allHold = true;
    for (const auto& subject : {ModelSteps, WeightSteps, TuningSteps, ProfileSteps, ClosingSteps}) {
        for (const TourStep& step : subject(hands)) {
            allHold = TakeStep(hands, step, allHold) && allHold;
        }
    }
    return SaveJournal(window.Application().Journal(), hands.FileInFolder(QStringLiteral("journal.txt"))) && allHold;
}

} // namespace Host
