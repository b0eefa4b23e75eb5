// Writes the constant character tables of src/model/ from the files of data/.
//
// Usage: make_tables UnicodeData.txt Blocks.txt ShiftJIS.txt Charsets.txt OUTPUT.cpp
//
// Names stand in one string, each closed by a NUL, and records refer to them by offset, so that the
// tables need no relocation when the program is loaded.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

// The two-letter general categories in the order of their numbers.
constexpr std::array<const char*, 29> kCategories = {
    "Cc", "Cf", "Co", "Cs", "Ll", "Lm", "Lo", "Lt", "Lu", "Mc", "Me", "Mn", "Nd", "Nl", "No",
    "Pc", "Pd", "Pe", "Pf", "Pi", "Po", "Ps", "Sc", "Sk", "Sm", "So", "Zl", "Zp", "Zs"};

class NamePool
{
public:
    std::size_t Add(const std::string& name)
    {
        const auto [place, isNew] = offsets_.try_emplace(name, size_);
        if (isNew) {
            names_.push_back(name);
            size_ += name.size() + 1;
        }
        return place->second;
    }

    void Write(std::ostream& out) const
    {
        out << "const char Names[] =";
        for (const std::string& name : names_)
            out << "\n    \"" << name << "\\0\"";
        out << ";\n\n";
    }

private:
    std::vector<std::string> names_;
    std::map<std::string, std::size_t> offsets_;
    std::size_t size_ = 0;
};

std::vector<std::string> ReadLines(const std::string& path)
{
    std::ifstream in(path);
    if (!in)
        throw std::runtime_error("cannot read " + path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        if (!line.empty())
            lines.push_back(line);
    }
    return lines;
}

// The parts of a line between the separators; fails unless there are as many as expected.
std::vector<std::string> Split(const std::string& line, const std::string& separator,
                               std::size_t expected)
{
    std::vector<std::string> parts;
    std::size_t start = 0;
    for (std::size_t end = 0; (end = line.find(separator, start)) != std::string::npos;) {
        parts.push_back(line.substr(start, end - start));
        start = end + separator.size();
    }
    parts.push_back(line.substr(start));
    if (parts.size() != expected)
        throw std::runtime_error("unexpected line: " + line);
    return parts;
}

unsigned long Hex(const std::string& text)
{
    return std::stoul(text, nullptr, 16);
}

std::size_t CategoryNumber(const std::string& category)
{
    const auto* const found = std::find(kCategories.begin(), kCategories.end(), category);
    if (found == kCategories.end())
        throw std::runtime_error("unknown category " + category);
    return static_cast<std::size_t>(found - kCategories.begin());
}

// Each set takes the ranges that follow those of the set before it.
void WriteCharsets(const std::string& path, NamePool& pool, std::ostream& out)
{
    const std::vector<std::string> sets = ReadLines(path);
    std::ostringstream ranges;
    std::size_t rangeCount = 0;
    out << "const CharsetRecord Charsets[" << sets.size() << "] = {\n";
    for (const std::string& line : sets) {
        const auto parts = Split(line, ";", 3);
        const std::size_t firstRange = rangeCount;
        std::istringstream words(parts[2]);
        for (std::string word; words >> word; ++rangeCount) {
            const std::size_t last = word.find('-') + 1;
            ranges << "    {0x" << word.substr(0, 4) << ", 0x" << word.substr(last) << "},\n";
        }
        out << "    {" << pool.Add(parts[0]) << ", " << pool.Add(parts[1]) << ", " << firstRange
            << ", " << rangeCount - firstRange << "},\n";
    }
    out << "};\n\nconst CodeRange CharsetRanges[" << rangeCount << "] = {\n"
        << ranges.str() << "};\n\n";
}

struct TablePaths
{
    std::string unicode;
    std::string blocks;
    std::string shiftJis;
    std::string charsets;
};

void WriteTables(const TablePaths& paths, std::ostream& out)
{
    NamePool pool;
    const std::size_t noName = pool.Add("");
    std::map<unsigned long, std::size_t> nameOfCode;

    out << "// Made by make_tables from data/; edit that instead.\n\n"
           "#include \"model/character_data.h\"\n\n"
           "namespace Glyphor::CharacterData\n{\n\n";

    const std::vector<std::string> characters = ReadLines(paths.unicode);
    out << "const CharacterRecord Characters[" << characters.size() << "] = {\n";
    for (const std::string& line : characters) {
        const auto parts = Split(line, ";", 3);
        const std::size_t name = pool.Add(parts[1]);
        nameOfCode[Hex(parts[0])] = name;
        out << "    {0x" << parts[0] << ", " << CategoryNumber(parts[2]) << ", " << name << "},\n";
    }

    const std::vector<std::string> blocks = ReadLines(paths.blocks);
    out << "};\n\nconst BlockRecord Blocks[" << blocks.size() << "] = {\n";
    for (const std::string& line : blocks) {
        const auto parts = Split(line, "; ", 2);
        const auto range = Split(parts[0], "..", 2);
        out << "    {0x" << range[0] << ", 0x" << range[1] << ", " << pool.Add(parts[1]) << "},\n";
    }

    const std::vector<std::string> shiftJis = ReadLines(paths.shiftJis);
    out << "};\n\nconst ShiftJisRecord ShiftJis[" << shiftJis.size() << "] = {\n";
    for (const std::string& line : shiftJis) {
        const auto parts = Split(line, "\t", 2);
        // The zero row that closes the list is no character.
        const auto name = Hex(parts[0]) == 0 ? nameOfCode.end() : nameOfCode.find(Hex(parts[1]));
        out << "    {" << parts[0] << ", " << parts[1] << ", "
            << (name == nameOfCode.end() ? noName : name->second) << "},\n";
    }
    out << "};\n\n";

    WriteCharsets(paths.charsets, pool, out);
    pool.Write(out);
    out << "} // namespace Glyphor::CharacterData\n";
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 6) {
        std::cerr << "usage: make_tables UnicodeData.txt Blocks.txt ShiftJIS.txt Charsets.txt "
                     "OUTPUT.cpp\n";
        return EXIT_FAILURE;
    }
    try {
        std::ofstream out(argv[5]);
        WriteTables({argv[1], argv[2], argv[3], argv[4]}, out);
        out.close();
        if (!out)
            throw std::runtime_error(std::string("cannot write ") + argv[5]);
    } catch (const std::exception& error) {
        std::cerr << "make_tables: " << error.what() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
