#pragma once

#include "model/font.h"

#include <QHash>
#include <QWidget>

class QFormLayout;
class QLabel;

namespace Glyphor {

// What there is to know about the current character and the font, as text.
class InfoPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit InfoPanel(QWidget* parent = nullptr);

    // Null for no font, -1 for no character.
    void Show(const Font* font, int code);

    void SetHexadecimal(bool hexadecimal) { hexadecimal_ = hexadecimal; }

    // The value under a caption, for whoever reads the panel without seeing it.
    [[nodiscard]] QString Value(const QString& caption) const;

private:
    void AddHeading(QFormLayout& form, const QString& text);
    void AddRow(QFormLayout& form, const QString& caption);
    void Set(const QString& caption, const QString& value);
    void ShowFont(const Font& font);
    void ShowCharacter(const Font& font, quint16 code);

    QHash<QString, QLabel*> values_;
    bool hexadecimal_ = true;
};

} // namespace Glyphor
