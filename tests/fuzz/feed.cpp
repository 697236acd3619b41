// Feeds a fuzz target its seeds and files; without a fuzzer around it, in the ordinary tests.
//
//   feed_TARGET [FILE or FOLDER]…   the seeds, then the files
//   feed_TARGET --seeds FOLDER      writes the seeds for a fuzzer
#include "tests/fuzz/Fuzz.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace {

void Feed(const QByteArray& input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()), std::size_t(input.size()));
}

QByteArray Read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        Fuzz::Fail(QLatin1String("cannot read ") + path);
    }
    return file.readAll();
}

int FeedAll(const QString& path)
{
    if (QFileInfo(path).isFile()) {
        printf("%s\n", qPrintable(path));
        Feed(Read(path));
        return 1;
    }
    int count = 0;
    QDirIterator files(path, QDir::Files);
    while (files.hasNext()) {
        count += FeedAll(files.next());
    }
    return count;
}

} // namespace

int main(int argc, char** argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    const QVector<QByteArray> seeds = FuzzSeeds();
    if (argc == 3 && qstrcmp(argv[1], "--seeds") == 0) {
        const QDir folder(QString::fromLocal8Bit(argv[2]));
        for (int i = 0; i < seeds.size(); ++i) {
            QFile file(folder.filePath(QStringLiteral("seed-%1").arg(i)));
            if (!folder.mkpath(QStringLiteral(".")) || !file.open(QIODevice::WriteOnly) ||
                file.write(seeds.at(i)) != seeds.at(i).size()) {
                Fuzz::Fail(QLatin1String("cannot write ") + file.fileName());
            }
        }
        return 0;
    }
    for (const QByteArray& seed : seeds) {
        Feed(seed);
    }
    int files = 0;
    for (int i = 1; i < argc; ++i) {
        files += FeedAll(QString::fromLocal8Bit(argv[i]));
    }
    printf("%d seeds, %d files\n", int(seeds.size()), files);
    return 0;
}
