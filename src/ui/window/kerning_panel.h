#pragma once

#include "model/font.h"

#include <QAbstractTableModel>
#include <QWidget>

#include <optional>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTableView;

namespace Glyphor {

// The kerning pairs of one character: what may stand behind it, and the distance.
class KerningModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Next, Distance };

    using QAbstractTableModel::QAbstractTableModel;

    // Null for no character.
    void Show(const Font* font, const Character* character);

    // -1 where there is no such pair.
    [[nodiscard]] int RowOf(quint16 next) const;
    [[nodiscard]] quint16 NextOf(int row) const { return pairs_[std::size_t(row)].right; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

Q_SIGNALS:
    void DistanceSet(quint16 next, int distance);

private:
    std::vector<KerningPair> pairs_;
    EncodingType encoding_ = EncodingType::Unicode;
    CodeSet saved_; // codes whose pairs are saved
};

// Shows the kerning pairs of the current character, and asks for changes of them.
class KerningPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit KerningPanel(QWidget* parent = nullptr);

    // Null for no font, -1 for no character.
    void ShowCode(const Font* font, int code);

Q_SIGNALS:
    // Of the character that is shown; also for a new pair.
    void PairSet(quint16 code, quint16 next, int distance);
    void PairsRemoved(quint16 code, const Glyphor::CodeSet& next);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Add();
    void RemoveSelected();
    void EnablePossible();

    // What is typed, if it is a character of the font.
    [[nodiscard]] std::optional<quint16> TypedCode() const;

    KerningModel* model_;
    QLabel* title_;
    QTableView* table_;
    QLineEdit* next_;
    QSpinBox* distance_;
    QPushButton* add_;
    QPushButton* remove_;
    int code_ = -1; // that has a character
    EncodingType encoding_ = EncodingType::Unicode;
    CodeSet existing_;
};

} // namespace Glyphor
