#include "tests/support/TestProgram.h"

#include <QFileInfo>
#include <QTextStream>

#include <vector>

namespace {

std::vector<TestEntry>& Entries()
{
    static std::vector<TestEntry> entries;
    return entries;
}

QString NameOf(const TestEntry& entry)
{
    return QFileInfo(QString::fromLocal8Bit(entry.file)).completeBaseName();
}

} // namespace

TestRegistration::TestRegistration(const TestEntry& entry)
{
    Entries().push_back(entry);
}

int main(int argc, char** argv)
{
    const QString wanted = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    for (const TestEntry& entry : Entries()) {
        if (NameOf(entry) == wanted) {
            // The name of the class is not for Qt Test.
            std::vector<char*> arguments(argv, argv + argc);
            arguments.erase(arguments.begin() + 1);
            arguments.push_back(nullptr);
            return entry.run(argc - 1, arguments.data());
        }
    }
    QTextStream out(stderr);
    out << "Usage: " << argv[0] << " TEST [arguments of Qt Test]\nTests:\n";
    for (const TestEntry& entry : Entries()) {
        out << "  " << NameOf(entry) << '\n';
    }
    return 2;
}
