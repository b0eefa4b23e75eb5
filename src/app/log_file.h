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

    // Throws a CriticalException where the file can't be written, or where there is one that is no
    // log.
    void Write(const QStringList& actionLog, const QByteArray& lineEnding);

private:
    [[nodiscard]] bool MayReplace();

    QString subject_;
};

} // namespace Glyphor
