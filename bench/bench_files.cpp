// Measures the opening and saving of a font of 20,000 characters at 4 bits per pixel: of its C file
// against a compiler that only checks it, of its binary files against copying them.
//
// Usage: bench_files [FOLDER]
//
// FOLDER has the header of the library, GUI.h. The files are written to the working directory.

#include "files/font_file_c.h"
#include "files/font_file_sif.h"
#include "files/font_file_xbf.h"
#include "timing.h"

#include <QFileInfo>

#include <sys/resource.h>

#include <cstdio>
#include <cstdlib>
#include <string>

using namespace Glyphor;

namespace {

constexpr int CharacterCount = 20000;

std::unique_ptr<Font> MakeFont()
{
    auto font = std::make_unique<Font>(FontFormat::AA4, EncodingType::Unicode);
    font->SetName(QStringLiteral("Bench"));
    font->SetHeight(20);
    const CharMetrics metrics = {16, 18, 0, 1, 17};
    std::vector<uchar> bytes(static_cast<std::size_t>(BitmapSize(metrics, font->Metrics())));
    for (int index = 0; index < CharacterCount; ++index) {
        for (std::size_t at = 0; at < bytes.size(); ++at)
            bytes[at] = static_cast<uchar>(std::size_t(index) * 31 + at * at * 7);
        font->PutChar(static_cast<quint16>(0x4E00 + index), metrics, bytes);
    }
    return font;
}

template <typename Work>
double MedianSeconds(Work work)
{
    std::vector<double> times;
    for (int run = 0; run < 11; ++run)
        times.push_back(Seconds(work));
    return Median(times);
}

// Of a command, less the start of a process.
double CommandSeconds(const std::string& command)
{
    const auto run = [](const std::string& line) {
        return MedianSeconds([&line] {
            if (std::system(line.c_str()) != 0)
                std::exit(EXIT_FAILURE);
        });
    };
    return run(command) - run("exec true");
}

double PeakMiB()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024;
}

void MeasureC(const Font& font, const std::string& headers)
{
    const QString path = QStringLiteral("bench.c");
    FontFileC(path, {}).Write(font);
    const double megabytes = double(QFileInfo(path).size()) / 1e6;
    const double before = PeakMiB();
    const double opening = MedianSeconds([&path] { (void)FontFileC(path, {}).Read(); });
    const double peak = PeakMiB() - before;
    const double checking = Seconds([&headers] {
        if (std::system(("gcc -fsyntax-only -I" + headers + " bench.c").c_str()) != 0)
            std::exit(EXIT_FAILURE);
    });
    std::printf("C file of %.1f MB\n", megabytes);
    std::printf("  opening %.1f ms, %.0f MB/s, %.1f MiB more memory; gcc -fsyntax-only takes %.0f "
                "times as long\n",
                opening * 1e3, megabytes / opening, peak, checking / opening);
}

template <typename FileKind>
void MeasureBinary(const Font& font, const char* name)
{
    const QString path = QString::fromUtf8(name);
    const double saving = MedianSeconds([&] { FileKind(path).Write(font); });
    const double opening = MedianSeconds([&path] { (void)FileKind(path).Read(); });
    const double copying = CommandSeconds(std::string("exec cp ") + name + " copy");
    std::printf("%s of %.1f MB\n", name, double(QFileInfo(path).size()) / 1e6);
    // A saved file is on the disk, a copy is not yet.
    const double syncing = CommandSeconds(std::string("cp ") + name + " copy && sync copy");
    std::printf("  opening %.2f ms, saving %.2f ms, cp %.2f ms: %.2f and %.2f times cp; saving is "
                "%.2f times cp and sync\n",
                opening * 1e3, saving * 1e3, copying * 1e3, opening / copying, saving / copying,
                saving / syncing);
}

} // namespace

int main(int argc, char** argv)
{
    const std::unique_ptr<Font> font = MakeFont();
    MeasureC(*font, argc > 1 ? argv[1] : ".");
    MeasureBinary<FontFileXBF>(*font, "bench.xbf");
    MeasureBinary<FontFileSIF>(*font, "bench.sif");
    return 0;
}
