#include <QApplication>
#include <QUiLoader>

#include <algorithm>

/// The widgets of the installed SDK are found where Qt Designer looks for them: in "designer" of a plug-in folder.
int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const QStringList found = QUiLoader().availableWidgets();
    const auto wanted = {"QSpinBoxEx", "QDoubleSpinBoxEx", "QComboSpinBox", "QComboDoubleSpinBox", "QItemLabel"};
    const bool areAllThere = std::all_of(wanted.begin(), wanted.end(),
                                         [&found](const char* name) { return found.contains(QLatin1String(name)); });
    return areAllThere ? 0 : 1;
}
