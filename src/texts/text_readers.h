#pragma once

#include <QByteArrayView>

namespace Glyphor {

class TextCollector;

// Each reads the texts in a file of its format, which is valid UTF-8, and fails through the
// collector where the file is damaged.

// All of it.
void ReadPlainText(QByteArrayView text, TextCollector& collector);

// The fields, without the quotes around them. They are separated by commas, semicolons or tabs,
// whichever the first record has most of, or as a first line like "sep=;" says.
void ReadCsvText(QByteArrayView text, TextCollector& collector);

// The translations of gettext that are neither fuzzy nor obsolete.
void ReadPoText(QByteArrayView text, TextCollector& collector);

// Fails where a catalogue of gettext, whose encoding is not checked yet, says that it is in another
// one than UTF-8. What is all ASCII does not matter.
void CheckPoCharset(QByteArrayView contents, const TextCollector& collector);

// The translations of Qt that are finished, neither obsolete nor vanished.
void ReadTsText(QByteArrayView text, TextCollector& collector);

// The targets, without markup of other formats in them, and without suggested ones.
void ReadXliffText(QByteArrayView text, TextCollector& collector);

// The strings, but not the keys.
void ReadJsonText(QByteArrayView text, TextCollector& collector);

// The string literals of C and C++, but neither character literals nor what is in "#if 0".
void ReadCText(QByteArrayView text, TextCollector& collector);

} // namespace Glyphor
