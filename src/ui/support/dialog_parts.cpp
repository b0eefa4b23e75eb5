#include "ui/support/dialog_parts.h"

#include "app/file_name.h"
#include "app/file_system.h"
#include "app/settings.h"
#include "app/shown_text.h"
#include "model/code_set.h"
#include "model/code_text.h"
#include "model/encoding.h"
#include "model/unicode_table.h"

#include <QDialog>
#include <QLabel>
#include <QScrollArea>
#include <QUrl>
#include <QVBoxLayout>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

QWidget* Lined(QBoxLayout::Direction direction, std::initializer_list<QWidget*> parts,
               const QWidget* growing)
{
    auto* const whole = new QWidget;
    auto* const layout = new QBoxLayout(direction, whole);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget* const part : parts)
        layout->addWidget(part, part == growing ? 1 : 0);
    if (growing == nullptr)
        layout->addStretch();
    return whole;
}

// Hides from a scroll area that the height of something depends on its width: it would get its
// preferred height then, and scroll before that is needed.
class Holder final : public QWidget
{
public:
    explicit Holder(QWidget& content) : content_(content) { content.setParent(this); }

    [[nodiscard]] QSize sizeHint() const override { return content_.sizeHint(); }
    [[nodiscard]] QSize minimumSizeHint() const override { return content_.minimumSizeHint(); }

protected:
    void resizeEvent(QResizeEvent*) override { content_.setGeometry(rect()); }

private:
    QWidget& content_;
};

// The base class wants no more than a part of the screen.
class ContentArea final : public QScrollArea
{
public:
    explicit ContentArea(QWidget& content) { setWidget(new Holder(content)); }

    [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        constexpr QSize least(240, 160);
        return widget()->minimumSizeHint().boundedTo(least);
    }
};

} // namespace

QWidget* Row(std::initializer_list<QWidget*> parts, const QWidget* growing)
{
    return Lined(QBoxLayout::LeftToRight, parts, growing);
}

QWidget* Column(std::initializer_list<QWidget*> parts, const QWidget* growing)
{
    return Lined(QBoxLayout::TopToBottom, parts, growing);
}

QScrollArea* ScrollAreaOf(QWidget& content)
{
    auto* const area = new QScrollArea;
    area->setWidget(&content);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus);
    return area;
}

QWidget* ScrollingContent(QWidget& content)
{
    auto* const area = new ContentArea(content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    for (QWidget* const part : {&content, area->widget(), area->viewport()})
        part->setAutoFillBackground(false);
    return area;
}

QDialogButtonBox* AddButtons(QDialog& dialog, QVBoxLayout& layout,
                             QDialogButtonBox::StandardButtons kinds)
{
    auto* const buttons = new QDialogButtonBox(kinds, Qt::Horizontal, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout.addWidget(buttons);
    return buttons;
}

QMessageBox::StandardButton ShowPlainBox(QWidget* parent, QMessageBox::Icon icon,
                                         const QString& title, const QString& text,
                                         QMessageBox::StandardButtons buttons,
                                         QMessageBox::StandardButton defaultButton)
{
    QMessageBox box(icon, title, text, buttons, parent);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(defaultButton);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

QLabel* PlainLabel(const QString& text)
{
    auto* const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    return label;
}

QString TitlePart(const QString& name)
{
    return Shown(name).replace("[*]"_L1, "[*][*]"_L1);
}

QString ChosenPath(const QUrl& url)
{
    return WithLostBytes(FileNameOf(url));
}

QLabel* LabelFor(QWidget& buddy, const QString& text)
{
    auto* const label = new QLabel(text);
    label->setBuddy(&buddy);
    return label;
}

std::optional<quint16> Encoded(quint16 unicode, EncodingType encoding)
{
    return EncodingFor(EncodingType::Unicode).Converted(encoding, unicode);
}

std::optional<quint16> ParseCode(const QString& text, EncodingType encoding)
{
    const QString trimmed = text.trimmed();
    if (trimmed.size() == 1 && !trimmed[0].isDigit())
        return Encoded(trimmed[0].unicode(), encoding);
    const bool isUnicode = trimmed.startsWith(u"U+"_s, Qt::CaseInsensitive);
    const bool isHexadecimal = isUnicode || trimmed.startsWith(u"0x"_s, Qt::CaseInsensitive);
    bool isNumber = false;
    const uint code =
        isHexadecimal ? trimmed.mid(2).toUInt(&isNumber, 16) : trimmed.toUInt(&isNumber, 10);
    if (!isNumber || code >= CodeSet::Limit)
        return std::nullopt;
    return isUnicode ? Encoded(quint16(code), encoding) : std::optional(quint16(code));
}

bool ShowsHexadecimal()
{
    return Settings::Instance().numeralSystem.value() != 0;
}

QString CodeText(int code)
{
    return ShownCode(quint16(code), ShowsHexadecimal());
}

const std::vector<UnicodeBlock>& UnicodeBlocks()
{
    static const std::vector<UnicodeBlock> blocks = [] {
        std::vector<UnicodeBlock> list;
        for (int code = 0; code < CodeSet::Limit; ++code) {
            const auto code16 = quint16(code);
            if (BlockIndex(code16) < 0)
                continue;
            const auto [first, last] = BlockRange(code16);
            list.push_back({QString(BlockName(code16)), first, last});
            code = last;
        }
        return list;
    }();
    return blocks;
}

void RestoreGeometry(QDialog& dialog, const QByteArray& geometry)
{
    if (!geometry.isEmpty())
        dialog.restoreGeometry(geometry);
}

} // namespace Glyphor
