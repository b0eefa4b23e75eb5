#pragma once

#include "model/font_format.h"

#include <QComboBox>
#include <QDialog>

namespace Glyphor {

enum class FormatGroup { Standard, Legacy };
enum class LegacyFormats { Offered, Hidden };

// The choice of a font format, in two groups with their headings.
class FormatBox final : public QComboBox
{
    Q_OBJECT

public:
    FormatBox() { OfferFormats(LegacyFormats::Offered); }

    // Makes the list and keeps the choice if it can.
    void OfferFormats(LegacyFormats legacy);

    [[nodiscard]] FontFormat Format() const;
    void SetFormat(FontFormat format);

private:
    void AddGroup(const QString& heading, FormatGroup group);
};

// The choice of an encoding; only legacy formats have one.
class EncodingBox final : public QComboBox
{
    Q_OBJECT

public:
    EncodingBox() { SetFormat(FontFormat::Standard); }

    // Offers what goes with the format and keeps the choice if it can.
    void SetFormat(FontFormat format);

    [[nodiscard]] EncodingType Encoding() const { return EncodingType(currentData().toInt()); }
    void SetEncoding(EncodingType encoding);
};

// Asks for format and encoding of a file that does not tell them.
class FormatDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit FormatDialog(QWidget* parent);

    [[nodiscard]] FontFormat Format() const { return format_->Format(); }
    [[nodiscard]] EncodingType Encoding() const { return encoding_->Encoding(); }

private:
    FormatBox* format_;
    EncodingBox* encoding_;
};

} // namespace Glyphor
