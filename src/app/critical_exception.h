#pragma once

#include "app/place.h"

#include <QString>

#include <exception>

namespace Glyphor {

// A failure that ends the work at hand. Thrown where it is noticed and shown by the front end.
class CriticalException : public std::exception
{
public:
    [[nodiscard]] static QString DefaultTitle();

    // The place is told where the text does not.
    CriticalException(const QString& title, const QString& text, const Place& place = {});
    explicit CriticalException(const QString& text) : CriticalException(DefaultTitle(), text) {}

    [[nodiscard]] const QString& Title() const { return title_; }
    [[nodiscard]] const QString& Text() const { return text_; }
    [[nodiscard]] const Place& Where() const { return place_; }
    [[nodiscard]] const char* what() const noexcept override { return what_.constData(); }

private:
    QString title_;
    QString text_;
    Place place_;
    QByteArray what_;
};

} // namespace Glyphor
