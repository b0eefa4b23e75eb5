#include "cli/arguments.h"

#include "app/critical_exception.h"
#include "app/engine_texts.h"
#include "app/file.h"
#include "app/file_name.h"
#include "app/file_system.h"
#include "app/shown_text.h"
#include "cli/command_line_option.h"

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr int MaxNesting = 10;

[[noreturn]] void FailToReadArguments(const QString& text, const Place& place)
{
    throw CriticalException(Engine::tr("Error reading arguments!"), text, place);
}

QString TextOfArgumentFile(const QString& path, const Place& askedAt)
{
    const auto fail = [&](const QString& reason) {
        FailToReadArguments(
            Engine::tr("The argument file %1 could not be read: %2").arg(Shown(path), reason),
            askedAt);
    };
    if (KindOf(path) == FileKind::Directory)
        fail(Engine::tr("It is a directory."));
    File file(path);
    if (!file.open(QIODevice::ReadOnly))
        fail(file.errorString());
    QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        fail(file.errorString());
    if (!bytes.isValidUtf8() || bytes.contains('\0'))
        fail(Engine::tr("It is no text in UTF-8."));
    if (bytes.startsWith("\xEF\xBB\xBF"))
        bytes.remove(0, 3);
    return QString::fromUtf8(bytes);
}

// The words of one line: blanks part them, quotes of either kind hold them together.
class ArgumentLine
{
public:
    ArgumentLine(QStringView text, const Place& place) : text_(text), place_(place) {}

    [[nodiscard]] std::vector<Argument> Words()
    {
        std::vector<Argument> words;
        for (SkipBlanks(); next_ < text_.size() && text_[next_] != u'#'; SkipBlanks())
            words.push_back({Word(), place_});
        return words;
    }

private:
    void SkipBlanks()
    {
        while (next_ < text_.size() && text_[next_].isSpace())
            ++next_;
    }

    QString Word()
    {
        QString word;
        for (; next_ < text_.size() && !text_[next_].isSpace(); ++next_) {
            if (text_[next_] == u'"' || text_[next_] == u'\'')
                word += Quoted();
            else
                word += text_[next_];
        }
        return word;
    }

    QStringView Quoted()
    {
        const qsizetype begin = next_ + 1;
        const qsizetype end = text_.indexOf(text_[next_], begin);
        if (end < 0)
            FailToReadArguments(Engine::tr("A quotation mark is missing."), place_);
        next_ = end;
        return text_.sliced(begin, end - begin);
    }

    QStringView text_;
    Place place_;
    qsizetype next_ = 0;
};

enum class FilesBehindAt { Read, Leave };

// Appends words to those before; an "@" in front of a value is part of it.
class ArgumentList
{
public:
    explicit ArgumentList(FilesBehindAt files) : readsFiles_(files == FilesBehindAt::Read) {}

    void Add(const Argument& argument, int nesting = 0)
    {
        const bool isFile = argument.text.size() > 1 && argument.text.startsWith(u'@');
        if (isFile && values_ <= 0 && readsFiles_) {
            AddFile(argument, nesting);
            return;
        }
        --values_;
        if (const CommandLineOption* const option = FindOption(argument.text)) {
            arguments_.options.insert(option->id);
            values_ =
                int(std::ranges::count(option->parameters, true, &CommandLineParameter::required));
        }
        arguments_.words.push_back(argument);
    }

    [[nodiscard]] Arguments Take() { return std::move(arguments_); }

private:
    void AddFile(const Argument& argument, int nesting)
    {
        if (nesting == MaxNesting)
            FailToReadArguments(
                Engine::tr("Argument files are nested deeper than %1.").arg(MaxNesting),
                argument.place);
        const QString path = argument.text.mid(1);
        const QString text = TextOfArgumentFile(path, argument.place);
        arguments_.files.append(path);
        int line = 0;
        for (const QStringView part : QStringView(text).split(u'\n')) {
            for (const Argument& word : ArgumentLine(part, {path, ++line, {}}).Words())
                Add(word, nesting + 1);
        }
    }

    bool readsFiles_;
    Arguments arguments_;
    int values_ = 0; // that the last option still waits for
};

Arguments ListOf(int argc, const char* const* argv, FilesBehindAt files)
{
    ArgumentList arguments(files);
    for (int index = 1; index < argc; ++index)
        arguments.Add({FileNameOf(QByteArrayView(argv[index])), {}});
    return arguments.Take();
}

} // namespace

Arguments ReadArguments(int argc, const char* const* argv)
{
    return ListOf(argc, argv, FilesBehindAt::Read);
}

Arguments WrittenArguments(int argc, const char* const* argv)
{
    return ListOf(argc, argv, FilesBehindAt::Leave);
}

} // namespace Glyphor
