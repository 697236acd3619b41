#include "tests/house/Includes.h"
#include "tests/support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace {

/// The one header that the rooms below the plug-in object may include from its room: what they are parts of.
const QString plugInHeader = QStringLiteral("plugin/PhysicsSoftClothPlugin.h");

const QString sources = QStringLiteral(SOFTCLOTH_SOURCE_FOLDER);

QString Line(const QString& room, const QSet<QString>& included)
{
    QStringList names = included.values();
    names.sort();
    return names.isEmpty() ? room : room + QStringLiteral(" -> ") + names.join(QLatin1Char(' '));
}

QStringList Lines(const Graph& rooms)
{
    QStringList lines;
    for (auto room = rooms.cbegin(); room != rooms.cend(); ++room) {
        lines.append(Line(room.key(), room.value()));
    }
    return lines;
}

/// The arrows as docs/architecture.md has them: the lines of its block that is marked "rooms".
QStringList DocumentedLines()
{
    QFile document(sources + QStringLiteral("/docs/architecture.md"));
    if (!document.open(QIODevice::ReadOnly)) {
        return {};
    }
    static const QRegularExpression block(QStringLiteral("```rooms\n(.*?)\n```"),
                                          QRegularExpression::DotMatchesEverythingOption);
    return block.match(QString::fromUtf8(document.readAll())).captured(1).split(QLatin1Char('\n'));
}

} // namespace

/// Which file may include which: the walls of the house.
class TestRooms : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void circlesAreFound();
    void documentShowsTheArrowsBetweenRooms();
    void noCircleBetweenFiles();
    void noCircleBetweenRoomsButForThePlugInsHeader();
    void libraryKnowsNothingOfTheStandInHost();
    void hostKnowsNothingOfTheSections();

private:
    Graph m_files;
};

void TestRooms::initTestCase()
{
    m_files = IncludesOfFiles(sources);
    QVERIFY2(m_files.size() > 200, "the sources were not found");
    QVERIFY(m_files.value(QStringLiteral("plugin/Startup.cpp")).contains(plugInHeader));
}

void TestRooms::circlesAreFound()
{
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    const QString c = QStringLiteral("c");
    QCOMPARE(FindCircle({{a, {b}}, {b, {c}}, {c, {b}}}), QStringList({b, c, b}));
    QCOMPARE(FindCircle({{a, {b, c}}, {b, {c}}, {c, {}}}), QStringList());
}

void TestRooms::documentShowsTheArrowsBetweenRooms()
{
    const QStringList actual = Lines(IncludesOfRooms(m_files));
    const QStringList documented = DocumentedLines();
    for (const QString& line : actual) {
        QVERIFY2(documented.contains(line), qPrintable(QStringLiteral("not in docs/architecture.md: ") + line));
    }
    QCOMPARE(documented, actual);
}

void TestRooms::noCircleBetweenFiles()
{
    QCOMPARE(FindCircle(m_files), QStringList());
}

void TestRooms::noCircleBetweenRoomsButForThePlugInsHeader()
{
    Graph files = m_files;
    for (QSet<QString>& included : files) {
        included.remove(plugInHeader);
    }
    QCOMPARE(FindCircle(IncludesOfRooms(files)), QStringList());
}

void TestRooms::libraryKnowsNothingOfTheStandInHost()
{
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        if (file.key().startsWith(QLatin1String("host/"))) {
            continue;
        }
        for (const QString& included : file.value()) {
            QVERIFY2(!included.startsWith(QLatin1String("host/")),
                     qPrintable(file.key() + QStringLiteral(" includes ") + included));
        }
    }
}

void TestRooms::hostKnowsNothingOfTheSections()
{
    static const QStringList hostMayKnow{QStringLiteral("host"), QStringLiteral("sdk"), QStringLiteral("ui"),
                                         QStringLiteral("panel"), QStringLiteral("plugin/services")};
    for (auto file = m_files.cbegin(); file != m_files.cend(); ++file) {
        if (!file.key().startsWith(QLatin1String("host/"))) {
            continue;
        }
        for (const QString& included : file.value()) {
            const bool isKnown = std::any_of(hostMayKnow.cbegin(), hostMayKnow.cend(), [&](const QString& room) {
                return included.startsWith(room + QLatin1Char('/'));
            });
            QVERIFY2(isKnown, qPrintable(file.key() + QStringLiteral(" includes ") + included));
        }
    }
}

SOFTCLOTH_TEST_WITH(TestRooms, QCoreApplication)

#include "tst_rooms.moc"
