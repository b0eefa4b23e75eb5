#pragma once

#include "app/file.h"

#include <QStringList>

namespace Glyphor {

// Tells, beside a saved font file, what was done to the font.
class LogFile : public File
{
public:
    // For a font file: its path with the suffix "log".
    explicit LogFile(const QString& fontPath);

    // Throws a CriticalException where the file can't be written.
    void Write(const QStringList& actionLog, const QByteArray& lineEnding);

private:
    QString subject_;
};

} // namespace Glyphor
