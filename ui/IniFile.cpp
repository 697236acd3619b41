#include "ui/IniFile.h"

#include "ui/IniLines.h"
#include "ui/IniValue.h"

#include <QFile>

#include <algorithm>
#include <vector>

namespace MV {

namespace {

/// Lines of a file under the name that their keys begin with.
struct Section
{
    QString prefix;
    std::vector<CIniLines> lines;
};

QString PrefixOf(const QByteArray& ini, const CIniLines& header)
{
    const QByteArray line = ini.mid(header.Begin() + 1, header.End() - header.Begin() - 1);
    const int bracket = line.indexOf(']');
    const QByteArray name = (bracket < 0 ? line : line.left(bracket)).trimmed();
    if (name.compare("general", Qt::CaseInsensitive) == 0) {
        return {};
    }
    if (name.compare("%general", Qt::CaseInsensitive) == 0) {
        return QString::fromLatin1(name.mid(1)) + QLatin1Char('/');
    }
    return IniKey(name.cbegin(), name.cend()) + QLatin1Char('/');
}

/// The lines of a file that hold values, by the names of their sections.
std::vector<Section> SectionsOf(const QByteArray& ini)
{
    std::vector<Section> sections(1);
    for (CIniLines line(ini); line.Next();) {
        if (line.IsHeader()) {
            sections.push_back({PrefixOf(ini, line), {}});
        } else if (line.HasValue()) {
            sections.back().lines.push_back(line);
        }
    }
    // Sections can hold the same key, by its whole name. Which of them counts does not depend on their order in the
    // file.
    std::stable_sort(sections.begin(), sections.end(),
                     [](const Section& a, const Section& b) { return a.prefix < b.prefix; });
    return sections;
}

} // namespace

std::optional<QByteArray> ReadIniText(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || file.size() > largestIniFile) {
        return std::nullopt;
    }
    return file.readAll();
}

CIniFile::CIniFile(const QByteArray& ini)
{
    const std::vector<Section> sections = SectionsOf(ini);
    for (const Section& section : sections) {
        for (const CIniLines& line : section.lines) {
            const char* const text = ini.constData();
            const char* keyEnd = text + line.KeyEnd();
            while (keyEnd > text + line.Begin() && IsIniBlank(keyEnd[-1])) {
                --keyEnd;
            }
            Insert(section.prefix + IniKey(text + line.Begin(), keyEnd),
                   IniValue(text + line.ValueBegin(), text + line.End()));
        }
    }
}

std::optional<CIniFile> CIniFile::Read(const QString& path)
{
    const auto text = ReadIniText(path);
    return text ? std::make_optional<CIniFile>(*text) : std::nullopt;
}

const CIniGroup& CIniFile::Group(const QString& name) const
{
    static const CIniGroup none;
    const auto found = m_groups.constFind(name);
    return found == m_groups.cend() ? none : *found;
}

/// A key can name a group itself, by a slash in it.
void CIniFile::Insert(const QString& path, const QVariant& value)
{
    const int slash = path.indexOf(QLatin1Char('/'));
    if (slash < 0) {
        m_groups[QString()].Insert(path, value);
    } else if (slash > 0) {
        m_groups[path.left(slash)].Insert(path.mid(slash + 1), value);
    }
}

} // namespace MV
