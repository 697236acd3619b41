#include "tests/support/LibraryFile.h"

#include <QFile>
#include <QProcess>

#include <elf.h>

#include <cstring>

namespace {

template <class Struct>
Struct At(const QByteArray& bytes, quint64 offset)
{
    Struct value{};
    std::memcpy(&value, bytes.constData() + offset, sizeof(Struct));
    return value;
}

/// The lines that a program of the binary utilities prints about a file.
QList<QByteArray> Ask(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0) {
        qFatal("%s: %s", qPrintable(program), process.readAllStandardError().constData());
    }
    return process.readAllStandardOutput().split('\n');
}

} // namespace

LibraryFile::LibraryFile(const QString& path)
    : m_path(path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s: %s", qPrintable(path), qPrintable(file.errorString()));
    }
    m_bytes = file.readAll();
}

QByteArray LibraryFile::Section(const QByteArray& name) const
{
    const auto header = At<Elf64_Ehdr>(m_bytes, 0);
    const auto section = [&](int index) {
        return At<Elf64_Shdr>(m_bytes, header.e_shoff + quint64(index) * header.e_shentsize);
    };
    const Elf64_Shdr names = section(header.e_shstrndx);
    for (int i = 0; i < header.e_shnum; ++i) {
        const Elf64_Shdr candidate = section(i);
        if (name == m_bytes.constData() + names.sh_offset + candidate.sh_name) {
            return m_bytes.mid(int(candidate.sh_offset), int(candidate.sh_size));
        }
    }
    return {};
}

QStringList LibraryFile::ExportedNames() const
{
    QStringList names;
    const QList<QByteArray> lines =
        Ask(QStringLiteral("nm"), {QStringLiteral("-D"), QStringLiteral("--defined-only"), m_path});
    for (const QByteArray& line : lines) {
        if (!line.isEmpty()) {
            names.append(QString::fromLatin1(line.mid(line.lastIndexOf(' ') + 1)));
        }
    }
    names.sort();
    return names;
}

QStringList LibraryFile::NeededLibraries() const
{
    QStringList names;
    const QList<QByteArray> lines = Ask(QStringLiteral("readelf"), {QStringLiteral("-dW"), m_path});
    for (const QByteArray& line : lines) {
        if (line.contains("(NEEDED)")) {
            const int open = line.indexOf('[') + 1;
            names.append(QString::fromLatin1(line.mid(open, line.indexOf(']') - open)));
        }
    }
    names.sort();
    return names;
}
