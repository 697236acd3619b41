#include "tests/support/LibraryFile.h"

#include <QFile>
#include <QVector>

#include <cstring>

#include <windows.h>

namespace {

template <class Struct>
Struct At(const QByteArray& bytes, quint64 offset)
{
    Struct value{};
    std::memcpy(&value, bytes.constData() + offset, sizeof(Struct));
    return value;
}

/// The headers of a 64-bit image.
struct Image
{
    explicit Image(const QByteArray& file)
        : bytes(file)
        , headersAt(quint64(At<IMAGE_DOS_HEADER>(file, 0).e_lfanew))
        , headers(At<IMAGE_NT_HEADERS64>(file, headersAt))
    {
        const quint64 first =
            headersAt + offsetof(IMAGE_NT_HEADERS64, OptionalHeader) + headers.FileHeader.SizeOfOptionalHeader;
        for (quint64 i = 0; i < headers.FileHeader.NumberOfSections; ++i) {
            sections.append(At<IMAGE_SECTION_HEADER>(file, first + i * sizeof(IMAGE_SECTION_HEADER)));
        }
    }

    /// The place in the file of what is at \p address once the image is loaded.
    quint64 Offset(quint64 address) const
    {
        for (const IMAGE_SECTION_HEADER& section : sections) {
            if (address >= section.VirtualAddress && address < section.VirtualAddress + section.SizeOfRawData) {
                return address - section.VirtualAddress + section.PointerToRawData;
            }
        }
        qFatal("address %llx is in no section", address);
        return 0;
    }

    QString NameAt(quint64 address) const { return QString::fromLatin1(bytes.constData() + Offset(address)); }

    /// A name of more than eight characters follows the symbols, and its place there is in the header.
    QByteArray NameOf(const IMAGE_SECTION_HEADER& section) const
    {
        char name[IMAGE_SIZEOF_SHORT_NAME + 1] = {}; // Eight characters have no end of their own.
        std::memcpy(name, section.Name, IMAGE_SIZEOF_SHORT_NAME);
        if (name[0] != '/') {
            return name;
        }
        const quint64 names =
            headers.FileHeader.PointerToSymbolTable + quint64(headers.FileHeader.NumberOfSymbols) * IMAGE_SIZEOF_SYMBOL;
        return bytes.constData() + names + QByteArray(name + 1).toULongLong();
    }

    quint64 Directory(int number) const { return headers.OptionalHeader.DataDirectory[number].VirtualAddress; }

    const QByteArray& bytes;
    quint64 headersAt;
    IMAGE_NT_HEADERS64 headers;
    QVector<IMAGE_SECTION_HEADER> sections;
};

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
    const Image image(m_bytes);
    for (const IMAGE_SECTION_HEADER& section : image.sections) {
        // A stripped image keeps the first eight characters of a name.
        const QByteArray known = image.NameOf(section);
        if (known == name || known == name.left(IMAGE_SIZEOF_SHORT_NAME)) {
            // What follows up to the raw size is padding.
            return m_bytes.mid(int(section.PointerToRawData), int(section.Misc.VirtualSize));
        }
    }
    return {};
}

QStringList LibraryFile::ExportedNames() const
{
    const Image image(m_bytes);
    const quint64 directory = image.Directory(IMAGE_DIRECTORY_ENTRY_EXPORT);
    if (directory == 0) {
        return {};
    }
    const auto exports = At<IMAGE_EXPORT_DIRECTORY>(m_bytes, image.Offset(directory));
    QStringList names;
    for (quint64 i = 0; i < exports.NumberOfNames; ++i) {
        names.append(image.NameAt(At<DWORD>(m_bytes, image.Offset(exports.AddressOfNames) + i * sizeof(DWORD))));
    }
    // One that has a number only would be offered all the same.
    for (DWORD i = exports.NumberOfNames; i < exports.NumberOfFunctions; ++i) {
        names.append(QStringLiteral("without a name"));
    }
    names.sort();
    return names;
}

QStringList LibraryFile::NeededLibraries() const
{
    const Image image(m_bytes);
    QStringList names;
    const quint64 imports = image.Directory(IMAGE_DIRECTORY_ENTRY_IMPORT);
    if (imports != 0) {
        quint64 at = image.Offset(imports);
        for (auto entry = At<IMAGE_IMPORT_DESCRIPTOR>(m_bytes, at); entry.Name != 0;
             at += sizeof entry, entry = At<IMAGE_IMPORT_DESCRIPTOR>(m_bytes, at)) {
            names.append(image.NameAt(entry.Name));
        }
    }
    const quint64 delayed = image.Directory(IMAGE_DIRECTORY_ENTRY_DELAY_IMPORT);
    if (delayed != 0) {
        names.append(QStringLiteral("libraries that are loaded late"));
    }
    names.sort();
    return names;
}
