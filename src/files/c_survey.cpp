#include "files/c_survey.h"

#include "app/shown_text.h"
#include "files/c_scanner.h"
#include "files/c_skimmer.h"

#include <QIODevice>

#include <algorithm>
#include <array>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

// A declaration outside of all braces, or a directive.
struct Item
{
    std::string_view head; // up to the initializer or the body
    std::string_view body; // with its braces; empty where there is none
    std::string_view name;
    bool isFont = false;  // a definition of one
    bool isTable = false; // of characters
    bool isBlock = false; // of properties
    bool isOfFont = false;
};

// Calls visit(word) for every identifier and number, until it returns false.
template <typename Visit>
void ForEachWord(std::string_view text, Visit visit)
{
    std::size_t at = 0;
    while (at < text.size()) {
        std::size_t end = at;
        while (end < text.size() && IsIdentifierCharacter(text[end]))
            ++end;
        if (end > at && !visit(text.substr(at, end - at)))
            return;
        at = std::max(end, at + 1);
    }
}

bool HasWord(std::string_view text, std::string_view word)
{
    const auto isBeside = [text](std::size_t at) {
        return at >= text.size() || !IsIdentifierCharacter(text[at]);
    };
    for (std::size_t at = text.find(word); at != std::string_view::npos;
         at = text.find(word, at + 1)) {
        if ((at == 0 || isBeside(at - 1)) && isBeside(at + word.size()))
            return true;
    }
    return false;
}

// The identifier in front of the first bracket, parenthesis or initializer; what attributes have
// between theirs does not count.
std::string_view DeclaredName(std::string_view head)
{
    constexpr std::array<std::string_view, 4> attributes = {"__attribute__", "__declspec",
                                                            "alignas", "_Alignas"};
    std::string_view name;
    std::string_view last;
    for (std::size_t at = 0; at < head.size();) {
        std::size_t end = at;
        while (end < head.size() && IsIdentifierCharacter(head[end]))
            ++end;
        if (end > at) {
            name = last;
            last = head.substr(at, end - at);
            at = end;
        } else if (head[at] == '(' && std::ranges::find(attributes, last) != attributes.end()) {
            int depth = 0;
            do {
                depth += head[at] == '(' ? 1 : head[at] == ')' ? -1 : 0;
            } while (++at < head.size() && depth > 0);
            last = name;
        } else if (head[at] == '[' || head[at] == '(' || head[at] == '=') {
            break;
        } else {
            ++at;
        }
    }
    return last;
}

// The characters that the cutting of a text looks at.
constexpr std::array<bool, 256> IsMark = [] {
    std::array<bool, 256> marks{};
    for (const char mark : std::string_view("#{};\"'"))
        marks[static_cast<unsigned char>(mark)] = true;
    return marks;
}();

// Cuts a text into its items.
class ItemList
{
public:
    explicit ItemList(std::string_view text) : text_(text) { Split(); }

    std::vector<Item>& Items() { return items_; }

private:
    void Split()
    {
        for (;;) {
            while (at_ < text_.size() && !IsMark[static_cast<unsigned char>(text_[at_])])
                ++at_;
            if (at_ >= text_.size())
                break;
            switch (text_[at_]) {
            case '#':
                SkipDirective();
                break;
            case '{':
                OpenBrace();
                break;
            case '}':
                CloseBrace();
                break;
            case ';':
                if (depth_ == 0)
                    Finish(at_ + 1);
                break;
            default:
                SkipLiteral();
                break;
            }
            ++at_;
        }
        Finish(text_.size());
    }

    void OpenBrace()
    {
        if (depth_ == 0 && IsTransparent(text_.substr(start_, at_ - start_))) {
            start_ = at_ + 1;
            return;
        }
        if (depth_ == 0 && bodyStart_ == 0)
            bodyStart_ = at_;
        ++depth_;
        if (depth_ == 1)
            SkipNumbers();
    }

    // Most of a file is pixels between braces, where nothing else is to be found.
    void SkipNumbers()
    {
        const std::size_t close = text_.find('}', at_);
        const std::string_view inner =
            text_.substr(at_ + 1, close == std::string_view::npos ? close : close - at_ - 1);
        const auto has = [inner](char mark) { return inner.find(mark) != std::string_view::npos; };
        if (close != std::string_view::npos && !has('{') && !has('"') && !has('\'') && !has('#'))
            at_ = close - 1;
    }

    void CloseBrace()
    {
        if (depth_ == 0) {
            start_ = at_ + 1; // of a brace around declarations
            return;
        }
        --depth_;
        if (depth_ == 0 && IsFunctionBody())
            Finish(at_ + 1);
    }

    // Braces around whole declarations.
    static bool IsTransparent(std::string_view head)
    {
        const std::string_view words = Trimmed(head);
        return words == "extern \"C\"" || words == "extern \"C++\"" ||
               words.starts_with("namespace") || words.starts_with("inline namespace");
    }

    [[nodiscard]] bool IsFunctionBody() const
    {
        const std::string_view head = Trimmed(text_.substr(start_, bodyStart_ - start_));
        return !head.ends_with('=') && head.find(')') != std::string_view::npos &&
               head.find('=') == std::string_view::npos;
    }

    void SkipLiteral()
    {
        const char quote = text_[at_++];
        while (at_ < text_.size() && text_[at_] != quote && !IsLineEnd(text_[at_]))
            at_ += text_[at_] == '\\' && at_ + 1 < text_.size() ? 2 : 1;
    }

    [[nodiscard]] bool IsAtLineStart() const
    {
        std::size_t before = at_;
        while (before > 0 && text_[before - 1] == ' ')
            --before;
        return before == 0 || IsLineEnd(text_[before - 1]);
    }

    // A directive ends with its line, unless a backslash continues it.
    void SkipDirective()
    {
        if (!IsAtLineStart())
            return;
        const std::size_t start = at_;
        while (at_ < text_.size() && !IsLineEnd(text_[at_])) {
            const bool isContinued = text_[at_] == '\\';
            at_ += !isContinued ? 1 : text_.substr(at_ + 1).starts_with("\r\n") ? 3 : 2;
        }
        at_ = std::min(at_, text_.size());
        if (depth_ == 0 && Trimmed(text_.substr(start_, start - start_)).empty())
            start_ = at_;
        AddDirective(text_.substr(start, at_ - start));
    }

    // Conditions, guards and what generated files have are a part of any font.
    void AddDirective(std::string_view line)
    {
        std::array<std::string_view, 3> words;
        std::size_t count = 0;
        ForEachWord(line, [&](std::string_view word) {
            words[count++] = word;
            return count < words.size();
        });
        const std::string_view kind = words[0];
        const std::string_view name = words[1];
        const bool isGuard = kind == "define" && (count < 3 || name.starts_with("GUI_") ||
                                                  name.ends_with("_H") || name.ends_with("_H_"));
        const bool isGuiHeader = kind == "include" && name.starts_with("GUI");
        const bool isOther = (kind == "define" && !isGuard) || (kind == "include" && !isGuiHeader);
        if (isOther || (kind == "pragma" && name != "once"))
            items_.push_back({.head = line, .body = {}, .name = Trimmed(line)});
    }

    void Finish(std::size_t end)
    {
        const std::string_view whole = text_.substr(start_, end - start_);
        const std::size_t headEnd = bodyStart_ > start_ ? bodyStart_ - start_ : whole.size();
        Item item{.head = Trimmed(whole.substr(0, headEnd)),
                  .body = whole.substr(std::min(headEnd, whole.size())),
                  .name = {}};
        start_ = end;
        bodyStart_ = 0;
        if (item.head.empty() || item.head == ";")
            return;
        item.name = DeclaredName(item.head);
        const bool isDefinition =
            !item.body.empty() || item.head.find('=') != std::string_view::npos;
        item.isFont = isDefinition && HasWord(item.head, "GUI_FONT");
        item.isTable = isDefinition && (HasWord(item.head, "GUI_CHARINFO") ||
                                        HasWord(item.head, "GUI_CHARINFO_EXT"));
        item.isBlock = isDefinition && (HasWord(item.head, "GUI_FONT_PROP") ||
                                        HasWord(item.head, "GUI_FONT_PROP_EXT"));
        items_.push_back(item);
    }

    std::string_view text_;
    std::size_t at_ = 0;
    std::size_t start_ = 0;
    std::size_t bodyStart_ = 0;
    int depth_ = 0;
    std::vector<Item> items_;
};

// Marks what belongs to the first font: what it refers to, and what that refers to.
class FontParts
{
public:
    explicit FontParts(std::vector<Item>& items) : items_(items)
    {
        definitions_.reserve(items.size());
        for (std::size_t index = 0; index < items.size(); ++index) {
            if (!items[index].body.empty())
                definitions_.emplace(items[index].name, index);
        }
    }

    // False where there is no font.
    bool Mark()
    {
        const auto font = std::ranges::find_if(items_, &Item::isFont);
        if (font == items_.end())
            return false;
        Reach(*font);
        // Readers find the table by its type, whatever refers to it, and its blocks by the table.
        const auto isOwnTable = [](const Item& item) { return item.isTable && item.isOfFont; };
        auto table = std::ranges::find_if(items_, isOwnTable);
        if (table == items_.end())
            table = std::ranges::find_if(items_, &Item::isTable);
        if (table != items_.end()) {
            Reach(*table);
            for (Item& item : items_) {
                if (item.isBlock && !item.isOfFont && HasWord(item.body, table->name))
                    Reach(item);
            }
        }
        MarkDeclarations();
        return true;
    }

private:
    void Reach(Item& first)
    {
        std::vector<Item*> open = {&first};
        while (!open.empty()) {
            Item& item = *open.back();
            open.pop_back();
            if (std::exchange(item.isOfFont, true))
                continue; // every block refers to the table
            ForEachWord(item.body, [&](std::string_view word) {
                if (word.front() >= '0' && word.front() <= '9')
                    return true;
                const auto found = definitions_.find(word);
                if (found == definitions_.end() || items_[found->second].isOfFont)
                    return true;
                Item& other = items_[found->second];
                if (item.isTable)
                    other.isOfFont = true; // bytes of a character, which refer to nothing
                else
                    open.push_back(&other);
                return true;
            });
        }
    }

    void MarkDeclarations()
    {
        for (Item& item : items_) {
            const auto found = definitions_.find(item.name);
            if (item.body.empty() && found != definitions_.end())
                item.isOfFont = items_[found->second].isOfFont;
        }
    }

    std::vector<Item>& items_;
    std::unordered_map<std::string_view, std::size_t> definitions_; // the first of each name
};

} // namespace

QStringList BesideTheFont(std::string_view text)
{
    ItemList list(text);
    QStringList names;
    if (!FontParts(list.Items()).Mark())
        return names;
    for (const Item& item : list.Items()) {
        constexpr std::size_t longest = 60;
        const std::string_view name =
            (item.name.empty() ? item.head : item.name).substr(0, longest);
        if (!item.isOfFont)
            names.append(QString::fromUtf8(name.data(), qsizetype(name.size())));
    }
    names.removeDuplicates();
    return names;
}

QStringList BesideTheFontOfFile(QIODevice& file)
{
    QByteArray piece(0x40000, Qt::Uninitialized); // stays in the processor's cache
    CSkimmer skimmer;
    qint64 size = 0;
    while ((size = file.read(piece.data(), piece.size())) > 0)
        skimmer.Add(QByteArrayView(piece).first(size));
    const std::optional<QByteArray> rest = skimmer.Finish();
    if (rest && BesideTheFont(CScanner(*rest).Text()).isEmpty())
        return {};
    file.seek(0);
    return BesideTheFont(CScanner(file.readAll()).Text());
}

QString Enumerated(const QStringList& names)
{
    constexpr qsizetype listed = 8;
    QStringList shown = names.first(std::min(listed, names.size()));
    if (names.size() > listed)
        shown.append(u"..."_s);
    return Shown(shown.join(u", "_s));
}

bool HasWideCharacters(const QByteArray& contents)
{
    const QByteArray marks[] = {"\xFF\xFE"_ba, "\xFE\xFF"_ba, QByteArray("\0\0\xFE\xFF", 4)};
    return std::ranges::any_of(
        marks, [&contents](const QByteArray& mark) { return contents.startsWith(mark); });
}

} // namespace Glyphor
