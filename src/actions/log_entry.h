#pragma once

#include <QString>
#include <QStringList>

namespace Glyphor {

// What an action tells of itself: a text with placeholders, which files have in English and the
// window in its own language, and what fills them.
class LogEntry
{
public:
    LogEntry() = default; // tells nothing

    // The text is one of those that are translated. Each argument takes the place of the lowest
    // placeholder that is left.
    explicit LogEntry(const char* text, const QStringList& arguments = {})
        : text_(text), arguments_(arguments)
    {}

    // The characters that it is about, in front of the text.
    [[nodiscard]] LogEntry About(const QString& prefix) const;

    [[nodiscard]] QString Text() const { return Filled(QString::fromLatin1(text_)); }
    [[nodiscard]] QString Translated() const;

private:
    [[nodiscard]] QString Filled(QString text) const;

    const char* text_ = nullptr;
    QStringList arguments_;
    QString prefix_;
};

// A file as the log tells of it: without its folders where the settings want that.
[[nodiscard]] QString LoggedPath(const QString& path);

} // namespace Glyphor
