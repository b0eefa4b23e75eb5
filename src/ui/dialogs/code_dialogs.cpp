#include "ui/dialogs/code_dialogs.h"

#include "app/settings.h"
#include "model/encoding.h"
#include "ui/support/dialog_parts.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace Glyphor {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype MostFound = 200;

} // namespace

EnableRangeDialog::EnableRangeDialog(ActionType change, const CodeSet& existing,
                                     EncodingType encoding, QWidget* parent)
    : QDialog(parent),
      change_(change),
      existing_(existing),
      encoding_(encoding),
      first_(new QLineEdit),
      last_(new QLineEdit),
      block_(new QComboBox),
      hint_(PlainLabel())
{
    setWindowTitle(change == ActionType::Enable ? tr("Enable range of characters")
                                                : tr("Disable range of characters"));
    block_->addItem(tr("Codes as entered"));
    for (const UnicodeBlock& block : UnicodeBlocks())
        block_->addItem(block.name);
    auto* const form = new QFormLayout;
    form->addRow(tr("&First:"), first_);
    form->addRow(tr("&Last:"), last_);
    if (encoding == EncodingType::Unicode) { // whose codes blocks are of
        form->addRow(tr("&Block:"), block_);
    } else {
        block_->setParent(this);
        block_->hide();
    }
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(hint_);
    layout->addStretch();
    ok_ = AddButtons(*this, *layout)->button(QDialogButtonBox::Ok);
    for (QLineEdit* const field : {first_, last_}) {
        field->setToolTip(tr("A code (0x41, U+0041 or 65), or a character that is no digit"));
        connect(field, &QLineEdit::textChanged, this, &EnableRangeDialog::Validate);
    }
    connect(block_, &QComboBox::activated, this, &EnableRangeDialog::ChooseBlock);

    const EnableRangeDialogData stored = Settings::Instance().enableRangeDialog.load();
    const bool isStored = stored.first >= 0 && stored.first <= stored.last && stored.last <= 0xFFFF;
    first_->setText(CodeText(isStored ? stored.first : 0x20));
    last_->setText(CodeText(isStored ? stored.last : 0x7E));
    RestoreGeometry(*this, stored.geometry);
    first_->setFocus();
    first_->selectAll();
}

EnableRangeDialog::~EnableRangeDialog()
{
    EnableRangeDialogData record = Settings::Instance().enableRangeDialog.load();
    record.geometry = saveGeometry();
    if (result() == Accepted) {
        record.first = First();
        record.last = Last();
    }
    Settings::Instance().enableRangeDialog.save(record);
}

void EnableRangeDialog::ChooseBlock(int index)
{
    if (index == 0)
        return;
    const UnicodeBlock& block = UnicodeBlocks()[std::size_t(index - 1)];
    first_->setText(CodeText(block.first));
    last_->setText(CodeText(block.last));
}

void EnableRangeDialog::Validate()
{
    const std::optional<quint16> first = ParseCode(first_->text(), encoding_);
    const std::optional<quint16> last = ParseCode(last_->text(), encoding_);
    const bool isRange = first && last && *first <= *last;
    ok_->setEnabled(isRange);
    if (!first || !last) {
        hint_->setText(
            tr("A code is written as 0x41, U+0041 or 65; what is no digit can stand for itself."));
    } else if (!isRange) {
        hint_->setText(tr("The last code is before the first one."));
    } else {
        int count = 0;
        for (int code = existing_.Next(*first); code <= *last; code = existing_.Next(code + 1))
            ++count;
        const int size = *last - *first + 1;
        QString hint = tr("Codes: %L1, in the font: %L2").arg(size).arg(count);
        if (change_ == ActionType::Enable && count < size)
            hint += u'\n' + tr("The others are added as characters without pixels.");
        hint_->setText(hint);
    }
    const auto& blocks = UnicodeBlocks();
    const auto block = std::ranges::find_if(blocks, [&](const UnicodeBlock& other) {
        return isRange && other.first == *first && other.last == *last;
    });
    block_->setCurrentIndex(block != blocks.end() ? int(block - blocks.begin()) + 1 : 0);
}

quint16 EnableRangeDialog::First() const
{
    return ParseCode(first_->text(), encoding_).value_or(0);
}

quint16 EnableRangeDialog::Last() const
{
    return ParseCode(last_->text(), encoding_).value_or(0);
}

GoToDialog::GoToDialog(const CodeSet& codes, EncodingType encoding, QWidget* parent)
    : QDialog(parent),
      codes_(codes),
      encoding_(encoding),
      field_(new QLineEdit),
      found_(new QListWidget),
      hint_(PlainLabel())
{
    setWindowTitle(tr("Go to character"));
    field_->setPlaceholderText(tr("0x41, 65, A or a part of the name"));
    field_->installEventFilter(this);
    found_->setAccessibleName(tr("Characters found"));
    found_->setFocusPolicy(Qt::NoFocus);
    found_->setUniformItemSizes(true); // or every one of many is measured
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(LabelFor(*field_, tr("&Code, character or name:")));
    layout->addWidget(field_);
    layout->addWidget(found_, 1);
    layout->addWidget(hint_);
    ok_ = AddButtons(*this, *layout)->button(QDialogButtonBox::Ok);
    connect(field_, &QLineEdit::textChanged, this, &GoToDialog::Search);
    connect(found_, &QListWidget::itemActivated, this, &QDialog::accept);
    resize(460, 380);
    Search({});
}

int GoToDialog::Code() const
{
    const QListWidgetItem* const item = found_->currentItem();
    return item != nullptr ? item->data(Qt::UserRole).toInt() : -1;
}

// A digit is a character as well as a code.
QList<int> GoToDialog::CodesOf(const QString& text) const
{
    QList<int> codes;
    const auto add = [&](int code) {
        if (codes_.Test(quint16(code)) && !codes.contains(code))
            codes.append(code);
    };
    const QString trimmed = text.trimmed();
    if (const QString one = trimmed.isEmpty() ? text : trimmed; one.size() == 1) {
        if (const auto code = Encoded(one[0].unicode(), encoding_))
            add(*code);
    }
    if (trimmed.size() != 1 || trimmed[0].isDigit()) {
        if (const auto code = ParseCode(text, encoding_))
            add(*code);
    }
    return codes;
}

// All words of the text must be in the name; names that have them as whole words come first.
QList<int> GoToDialog::NamedLike(const QString& text) const
{
    const QStringList words = text.toUpper().split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty() || text.trimmed().size() < 2)
        return {};
    QList<int> whole;
    QList<int> parts;
    const Encoding& encoding = EncodingFor(encoding_);
    for (const quint16 code : codes_) {
        const QLatin1StringView name = encoding.CharName(code);
        if (!std::ranges::all_of(words,
                                 [name](const QString& word) { return name.contains(word); }))
            continue;
        const QStringList nameWords = QString(name).split(u' ');
        const bool isWhole = std::ranges::all_of(
            words, [&nameWords](const QString& word) { return nameWords.contains(word); });
        (isWhole ? whole : parts).append(code);
        if (whole.size() >= MostFound)
            break;
    }
    whole += parts;
    return whole.first(std::min(whole.size(), MostFound));
}

void GoToDialog::Search(const QString& text)
{
    QList<int> codes = CodesOf(text);
    for (const int code : NamedLike(text)) {
        if (!codes.contains(code))
            codes.append(code);
    }
    found_->clear();
    const Encoding& encoding = EncodingFor(encoding_);
    for (const int code : std::as_const(codes)) {
        const auto unicode = encoding.Converted(EncodingType::Unicode, quint16(code));
        const bool isShown = unicode && QChar(*unicode).isPrint();
        auto* const item = new QListWidgetItem(
            u"%1   %2   %3"_s.arg(CodeText(code), isShown ? QString(QChar(*unicode)) : u" "_s,
                                  encoding.CharName(quint16(code))));
        item->setData(Qt::UserRole, code);
        found_->addItem(item);
    }
    found_->setCurrentRow(0);
    ok_->setEnabled(!codes.isEmpty());
    hint_->setText(!codes.isEmpty() || text.isEmpty()
                       ? QString()
                       : tr("No character that the table shows matches."));
}

// The keys of the list work while one types.
bool GoToDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
            key == Qt::Key_PageDown)
            return QCoreApplication::sendEvent(found_, event);
    }
    return QDialog::eventFilter(watched, event);
}

DuplicateDialog::DuplicateDialog(const CodeSet& codes, const CodeSet& existing,
                                 EncodingType encoding, QWidget* parent)
    : QDialog(parent),
      codes_(codes),
      existing_(existing),
      encoding_(encoding),
      field_(new QLineEdit),
      hint_(PlainLabel())
{
    setWindowTitle(tr("Duplicate to code"));
    field_->setToolTip(tr("A code (0x41, U+0041 or 65), or a character that is no digit"));
    auto* const form = new QFormLayout;
    form->addRow(tr("&Code:"), field_);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(hint_);
    layout->addStretch();
    ok_ = AddButtons(*this, *layout)->button(QDialogButtonBox::Ok);
    connect(field_, &QLineEdit::textChanged, this, &DuplicateDialog::Validate);
    resize(420, sizeHint().height());
    Validate();
}

quint16 DuplicateDialog::Code() const
{
    return ParseCode(field_->text(), encoding_).value_or(0);
}

// What is wrong with the code, or what becomes of the characters; an empty one needs no hint.
void DuplicateDialog::Validate()
{
    const std::optional<quint16> code = ParseCode(field_->text(), encoding_);
    const QString fault =
        code
            ? FaultOf(*code)
            : tr("A code is written as 0x41, U+0041 or 65; what is no digit can stand for itself.");
    ok_->setEnabled(code && fault.isEmpty());
    if (!fault.isEmpty()) {
        hint_->setText(fault);
        return;
    }
    int replaced = 0;
    for (const quint16 own : codes_)
        replaced += existing_.Test(quint16(*code + own - *codes_.begin())) ? 1 : 0;
    const QLatin1StringView name = EncodingFor(encoding_).CharName(*code);
    hint_->setText(CodeText(*code) + u' ' + name + u'\n' +
                   tr("Characters to copy: %L1, of the font's own replaced: %L2")
                       .arg(codes_.Count())
                       .arg(replaced));
}

QString DuplicateDialog::FaultOf(quint16 code) const
{
    const Encoding& encoding = EncodingFor(encoding_);
    for (const quint16 own : codes_) {
        const int target = code + own - *codes_.begin();
        if (target >= CodeSet::Limit)
            return tr("%1 would get a code beyond 0xFFFF.").arg(CodeText(own));
        if (!encoding.Converted(EncodingType::Unicode, quint16(target)))
            return tr("%1 would get the code %2, which the encoding does not have.")
                .arg(CodeText(own), CodeText(target));
    }
    return code == *codes_.begin() ? tr("This is the code that it has already.") : QString();
}

} // namespace Glyphor
