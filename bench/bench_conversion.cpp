// Measures whole conversions against bare FreeType and an empty program, in turn, and prints
// medians and ratios: single times mean little on a noisy machine.
//
// Usage: bench_conversion FOLDER [RUNS]
//
// FOLDER has the programs; the conversions are written to the working directory.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fcntl.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using Command = std::vector<std::string>;

struct Sample
{
    double cpu = 0;  // seconds, user and system
    double wall = 0; // seconds
    long peak = 0;   // KiB
};

double Seconds(const timeval& time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

Sample Run(const Command& command)
{
    std::vector<char*> arguments;
    for (const std::string& argument : command)
        arguments.push_back(const_cast<char*>(argument.c_str()));
    arguments.push_back(nullptr);

    const auto start = std::chrono::steady_clock::now();
    const pid_t child = ::fork();
    if (child == 0) {
        const int null = ::open("/dev/null", O_RDWR);
        ::dup2(null, STDOUT_FILENO);
        ::execv(arguments[0], arguments.data());
        ::_exit(127);
    }
    int status = 0;
    rusage usage{};
    ::wait4(child, &status, 0, &usage);
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - start;
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        std::fprintf(stderr, "%s failed\n", arguments[0]);
        std::exit(EXIT_FAILURE);
    }
    return {Seconds(usage.ru_utime) + Seconds(usage.ru_stime), wall.count(), usage.ru_maxrss};
}

Sample Median(std::vector<Sample> samples)
{
    const auto middle = samples.begin() + std::ptrdiff_t(samples.size() / 2);
    Sample median;
    const auto pick = [&](auto member) {
        std::nth_element(
            samples.begin(), middle, samples.end(),
            [member](const Sample& a, const Sample& b) { return a.*member < b.*member; });
        median.*member = (*middle).*member;
    };
    pick(&Sample::cpu);
    pick(&Sample::wall);
    pick(&Sample::peak);
    return median;
}

void Print(const char* name, const Sample& sample)
{
    std::printf("  %-18s cpu %8.1f ms   wall %8.1f ms   peak %7.1f MiB\n", name, sample.cpu * 1e3,
                sample.wall * 1e3, double(sample.peak) / 1024);
}

void Compare(const char* title, const Command& glyphor, const Command& bare, const Command& empty,
             int runs)
{
    std::vector<Sample> samples[3];
    for (int run = 0; run <= runs; ++run) {
        int index = 0;
        for (const Command* command : {&glyphor, &bare, &empty}) {
            const Sample sample = Run(*command);
            if (run > 0) // the first warms the caches
                samples[index].push_back(sample);
            ++index;
        }
    }
    const Sample ours = Median(samples[0]);
    const Sample freeType = Median(samples[1]);
    const Sample start = Median(samples[2]);
    std::printf("%s\n", title);
    Print("Glyphor", ours);
    Print("bare FreeType", freeType);
    Print("empty program", start);
    std::printf("  (Glyphor - empty) / bare FreeType, cpu: %.2f\n",
                (ours.cpu - start.cpu) / freeType.cpu);
    std::printf("  Glyphor / bare FreeType, wall: %.2f\n", ours.wall / freeType.wall);
    std::printf("  Glyphor / empty, wall: %.2f\n\n", ours.wall / start.wall);
}

// What a run costs that converts nothing.
void CompareStart(const Command& glyphor, const Command& empty, int runs)
{
    std::vector<Sample> samples[2];
    for (int run = 0; run <= runs; ++run) {
        const Sample ours = Run(glyphor);
        const Sample start = Run(empty);
        if (run > 0) {
            samples[0].push_back(ours);
            samples[1].push_back(start);
        }
    }
    const Sample ours = Median(samples[0]);
    const Sample start = Median(samples[1]);
    std::printf("Nothing but the usage text\n");
    Print("Glyphor", ours);
    Print("empty program", start);
    std::printf("  Glyphor / empty, cpu: %.2f\n\n", ours.cpu / start.cpu);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2)
        return EXIT_FAILURE;
    const std::string folder = std::string(argv[1]) + "/";
    const int runs = argc > 2 ? std::atoi(argv[2]) : 5;
    const Command empty = {folder + "empty_qt"};
    const auto glyphor = [&](const std::string& font, const char* height,
                             const Command& more) -> Command {
        Command command = {folder + "Glyphor", font,  "-hide", "-height", height,
                           "-format",          "AA4", "-save", "bench.c"};
        command.insert(command.end(), more.begin(), more.end());
        return command;
    };
    const auto bare = [&](const std::string& font, const char* height) -> Command {
        return {folder + "bare_freetype", font, "0", height};
    };

    CompareStart({folder + "Glyphor", "-hide", "-help"}, empty, 40 * runs);
    const std::string sans = "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf";
    Compare("ASCII of DejaVuSans.ttf at 16px", glyphor(sans, "16px", {"-enable", "0x20-0x7E"}),
            bare(sans, "16"), empty, 4 * runs);
    Compare("All of DejaVuSans.ttf at 32px", glyphor(sans, "32px", {}), bare(sans, "32"), empty,
            runs);
    const std::string cjk = "/usr/share/fonts/opentype/noto/NotoSansCJK-Regular.ttc";
    if (::access(cjk.c_str(), R_OK) == 0)
        Compare("All of NotoSansCJK-Regular.ttc, face 0, at 48px", glyphor(cjk, "48px", {}),
                bare(cjk, "48"), empty, runs);
    else
        std::printf("NotoSansCJK-Regular.ttc is not installed (package fonts-noto-cjk)\n");
    return EXIT_SUCCESS;
}
