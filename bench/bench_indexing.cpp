// Measures the indexing of font directories against fontconfig's fc-scan over the same ones.
//
// Usage: bench_indexing [DIRECTORY ...]

#include "render/font_database.h"
#include "timing.h"

#include <QProcess>

#include <cstdio>

using namespace Glyphor;

int main(int argc, char** argv)
{
    QStringList directories;
    for (int index = 1; index < argc; ++index)
        directories.append(QString::fromLocal8Bit(argv[index]));
    if (directories.isEmpty())
        directories = {QStringLiteral("/usr/share/fonts/truetype/noto"),
                       QStringLiteral("/usr/share/fonts/truetype/dejavu")};

    constexpr int runs = 5;
    std::vector<double> indexing;
    std::vector<double> scanning;
    int files = 0;
    std::size_t families = 0;
    for (int run = 0; run < runs; ++run) {
        indexing.push_back(Seconds([&] {
            FontDatabase database;
            database.Build(
                directories, [&files](int count) { files = count; }, [](int) { return true; });
            families = database.Families().size();
        }));
        scanning.push_back(Seconds([&] {
            QProcess scan;
            scan.setStandardOutputFile(QProcess::nullDevice());
            scan.start(QStringLiteral("fc-scan"), directories);
            scan.waitForFinished(-1);
        }));
    }
    std::printf("Indexing %d files of %zu families\n", files, families);
    std::printf("  Glyphor %.1f ms, fc-scan %.1f ms: %.2f\n", Median(indexing) * 1e3,
                Median(scanning) * 1e3, Median(indexing) / Median(scanning));
    return 0;
}
