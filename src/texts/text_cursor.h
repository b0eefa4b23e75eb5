#pragma once

#include "texts/text_collector.h"
#include "texts/utf8.h"

namespace Glyphor {

// Walks a text in UTF-8 byte by byte and counts its lines.
class TextCursor
{
public:
    TextCursor(QByteArrayView text, TextCollector& collector) : text_(text), collector_(collector)
    {}

    [[nodiscard]] bool IsAtEnd() const { return at_ == text_.size(); }
    [[nodiscard]] bool IsAtLineEnd() const
    {
        return IsAtEnd() || text_[at_] == '\n' || text_[at_] == '\r';
    }
    [[nodiscard]] int Line() const { return line_; }
    [[nodiscard]] qsizetype Position() const { return at_; }
    [[nodiscard]] QByteArrayView Since(qsizetype start) const
    {
        return text_.sliced(start, at_ - start);
    }
    [[nodiscard]] QByteArrayView Rest() const { return text_.sliced(at_); }

    // A zero beyond the end.
    [[nodiscard]] char Peek(qsizetype ahead = 0) const
    {
        return at_ + ahead < text_.size() ? text_[at_ + ahead] : '\0';
    }

    // Stops at the end.
    void Skip(qsizetype count = 1)
    {
        for (; count > 0 && !IsAtEnd(); --count) {
            if (EndsLine(text_, at_))
                ++line_;
            ++at_;
        }
    }

    // Skips bytes for as long as they are of the kind; returns them.
    template <typename Predicate>
    QByteArrayView SkipWhile(Predicate isOfKind)
    {
        const qsizetype start = at_;
        while (!IsAtEnd() && isOfKind(text_[at_]))
            Skip();
        return Since(start);
    }
    QByteArrayView SkipBlanks()
    {
        return SkipWhile([](char byte) { return byte == ' ' || byte == '\t'; });
    }

    [[nodiscard]] TextCollector& Collector() const { return collector_; }
    [[noreturn]] void Fail(const QString& reason) const { collector_.Fail(reason, line_); }

private:
    QByteArrayView text_;
    TextCollector& collector_;
    qsizetype at_ = 0;
    int line_ = 1;
};

} // namespace Glyphor
