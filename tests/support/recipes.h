#pragma once

#include "support/test_main.h"

#include <QRegularExpression>

namespace Glyphor::Test {

// The group of the first match.
inline QString Captured(const QString& text, const QString& pattern)
{
    const QRegularExpression expression(pattern, QRegularExpression::DotMatchesEverythingOption);
    return expression.match(text).captured(1);
}

// The block of code that follows the words in the README.
inline QString ReadmeRecipe(const QString& words)
{
    QString text = Captured(Document(u"README.md"_s), words + u":\n\n(    .*?)\n\n"_s);
    return text.replace(QRegularExpression(u"^    "_s, QRegularExpression::MultilineOption), {});
}

inline QString CMakeRecipe()
{
    return ReadmeRecipe(u"In CMake, where Glyphor is installed"_s);
}

inline QString MakefileRecipe()
{
    return ReadmeRecipe(u"In a Makefile"_s);
}

} // namespace Glyphor::Test
