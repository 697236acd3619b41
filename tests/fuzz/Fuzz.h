#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <cstddef>
#include <cstdint>

/// What a fuzz target consists of; a file of its own for each.

/// Once, before anything else.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
/// Feeds one input to the code under test; ends the process when that goes wrong.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
/// Inputs to begin with.
QVector<QByteArray> FuzzSeeds();

namespace Fuzz {

/// Makes the application object, without a display, and keeps Qt's warnings to itself: input that makes no sense is
/// answered with them.
void StartApplication(int* argc, char*** argv);
/// How many warnings there were so far.
int WarningCount();

inline QByteArray Bytes(const std::uint8_t* data, std::size_t size)
{
    return QByteArray(reinterpret_cast<const char*>(data), int(size));
}

/// Writes \p bytes to a file of the process called \p name. \return its path
QString WriteFile(const char* name, const QByteArray& bytes);
/// The folder of these files.
QString Folder();

/// Ends the process, as a crash would.
[[noreturn]] void Fail(const QString& why);

/// Numbers out of an input, zeros after its end.
class Numbers
{
public:
    Numbers(const std::uint8_t* data, std::size_t size)
        : m_data(data)
        , m_left(size)
    {
    }

    bool IsAtEnd() const { return m_left == 0; }
    int Byte();
    /// From 0 to \p count - 1.
    int Below(int count) { return count > 0 ? Byte() % count : 0; }
    /// Any bits, NaN and infinity among them.
    float Float();

private:
    const std::uint8_t* m_data;
    std::size_t m_left;
};

} // namespace Fuzz
