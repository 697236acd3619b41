#include "host/workbench/Languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

#include <algorithm>
#include <utility>

namespace Host {

namespace {

const QString english = QStringLiteral("en");
const QString settingsKey = QStringLiteral("language");
const QString pluginPrefix = QStringLiteral("softcloth_");

} // namespace

Languages::Languages(QStringList folders)
    : m_folders(std::move(folders))
{
    for (const QString& folder : std::as_const(m_folders)) {
        const QStringList files = QDir(folder).entryList({pluginPrefix + QLatin1String("*.qm")}, QDir::Files);
        for (const QString& file : files) {
            m_codes.append(file.mid(pluginPrefix.size()).chopped(3));
        }
    }
    m_codes.sort();
    m_codes.removeDuplicates();
    m_codes.prepend(english);
}

Languages::~Languages() = default;

bool Languages::Choose(const QString& code)
{
    if (!code.isEmpty() && !m_codes.contains(code)) {
        return false;
    }
    m_chosen = code;
    const QString language = code.isEmpty() ? BestOf(m_codes, QLocale::system().uiLanguages()) : code;
    m_translators.clear();
    Install(QLatin1String("qtbase_") + language,
            QStringList{QLibraryInfo::location(QLibraryInfo::TranslationsPath)} + m_folders);
    Install(QLatin1String("workbench_") + language, m_folders);
    Install(pluginPrefix + language, m_folders);
    return true;
}

/// Installs the first \p file of \p folders, if there is one.
void Languages::Install(const QString& file, const QStringList& folders)
{
    auto translator = std::make_unique<QTranslator>();
    const bool isLoaded = std::any_of(folders.begin(), folders.end(), [&](const QString& folder) {
        // The loader looks for other files with shorter names unless it gets the whole one.
        const QString path = QDir(folder).filePath(file + QLatin1String(".qm"));
        return QFile::exists(path) && translator->load(path);
    });
    if (isLoaded) {
        QCoreApplication::installTranslator(translator.get());
        m_translators.push_back(std::move(translator));
    }
}

void Languages::Remember(const QString& code)
{
    QSettings().setValue(settingsKey, code);
}

QString Languages::Remembered()
{
    return QSettings().value(settingsKey).toString();
}

QString Languages::NameOf(const QString& code)
{
    const QLocale locale(code);
    if (locale.language() == QLocale::C) {
        return {};
    }
    // Qt says "American English" and "Spanish of Spain" to these.
    static const QHash<QString, QString> plainNames{{english, QStringLiteral("English")},
                                                    {QStringLiteral("es"), QStringLiteral("Español")}};
    QString name = plainNames.value(code, locale.nativeLanguageName());
    return name.replace(0, 1, locale.toUpper(name.left(1)));
}

QString Languages::BestOf(const QStringList& codes, const QStringList& wanted)
{
    for (const QString& name : wanted) {
        const QLocale reader(name);
        const auto best = std::find_if(codes.begin(), codes.end(), [&reader](const QString& code) {
            const QLocale locale(code);
            return locale.language() != QLocale::C && locale.language() == reader.language() &&
                   locale.script() == reader.script();
        });
        if (best != codes.end()) {
            return *best;
        }
    }
    return english;
}

} // namespace Host
