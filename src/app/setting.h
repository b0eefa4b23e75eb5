#pragma once

#include "app/settings_registry.h"

#include <QMetaType>
#include <QVariant>

#include <utility>

namespace Glyphor {

// The common part of every setting: its key in the registry that holds it.
class OptionBase
{
public:
    OptionBase(const OptionBase&) = delete;
    OptionBase& operator=(const OptionBase&) = delete;

    [[nodiscard]] const QString& Key() const { return key_; }

protected:
    OptionBase(SettingsRegistry& registry, const QString& key) : registry_(registry), key_(key) {}
    ~OptionBase() = default;

    [[nodiscard]] SettingsRegistry& Registry() const { return registry_; }

private:
    SettingsRegistry& registry_;
    QString key_;
};

// The stored value as the type of a setting; empty where it is not one.
[[nodiscard]] std::optional<bool> ToSetting(const QVariant& stored, const bool*);
[[nodiscard]] std::optional<int> ToSetting(const QVariant& stored, const int*);
[[nodiscard]] std::optional<QStringList> ToSetting(const QVariant& stored, const QStringList*);

// A value as it is stored. Paths with bytes that are no characters, which no text holds, become
// URLs.
template <typename Value>
[[nodiscard]] QVariant ToStored(const Value& value)
{
    return QVariant::fromValue(value);
}
[[nodiscard]] QVariant ToStored(const QStringList& paths);

// A value as the command line has it. Lists are parted as the system parts lists of paths.
[[nodiscard]] inline QVariant ValueOfText(const QString& text, const void*)
{
    return text;
}
[[nodiscard]] QVariant ValueOfText(const QString& text, const QStringList*);

[[nodiscard]] QString ValuesOf(const bool*);
[[nodiscard]] QString ValuesOf(const int*);
[[nodiscard]] QString ValuesOf(const QStringList*);

// A setting that a run can replace without storing it.
class Preference : public OptionBase
{
public:
    virtual void UseDefault() = 0;
    [[nodiscard]] virtual bool IsDefault() const = 0;

    // False where the text is no value of the setting.
    virtual bool UseText(const QString& text) = 0;

    [[nodiscard]] virtual QVariant Current() const = 0;

    // "true or false": the values that it takes.
    [[nodiscard]] virtual QString Values() const = 0;

    virtual ~Preference() = default;

protected:
    using OptionBase::OptionBase;
};

// A setting bound to a variable, which has the stored value or else the default.
template <typename Value>
class OptionByRef final : public Preference
{
public:
    using Check = bool (*)(const Value&);

    // A stored value that fails the check counts as not stored.
    OptionByRef(SettingsRegistry& registry, const QString& key, Value& variable,
                const Value& defaultValue, Check isValid = nullptr)
        : Preference(registry, key), variable_(variable), default_(defaultValue), isValid_(isValid)
    {
        registry.RegisterDefault(key, QVariant::fromValue(defaultValue));
        if (!Use(registry.value(key)))
            UseDefault();
    }

    [[nodiscard]] const Value& value() const { return variable_; }

    void setValue(const Value& value)
    {
        variable_ = value;
        Registry().setValue(Key(), ToStored(value));
    }

    void UseDefault() override { variable_ = default_; }
    [[nodiscard]] bool IsDefault() const override { return variable_ == default_; }
    bool UseText(const QString& text) override
    {
        return Use(ValueOfText(text, static_cast<const Value*>(nullptr)));
    }
    [[nodiscard]] QVariant Current() const override { return QVariant::fromValue(variable_); }
    [[nodiscard]] QString Values() const override
    {
        return ValuesOf(static_cast<const Value*>(nullptr));
    }

private:
    bool Use(const QVariant& given)
    {
        const auto value = ToSetting(given, static_cast<const Value*>(nullptr));
        const bool isUsable = value && (isValid_ == nullptr || isValid_(*value));
        if (isUsable)
            variable_ = *value;
        return isUsable;
    }

    Value& variable_;
    Value default_;
    Check isValid_;
};

// The whole record of a dialog's last entries and geometry, stored as one value. The record is a
// plain type with data stream operators, which restore the defaults where the stream is damaged,
// and must be registered as a meta-type before the store is first asked for anything.
template <typename Record>
class OptionDialogData : public OptionBase
{
public:
    OptionDialogData(SettingsRegistry& registry, const QString& key) : OptionBase(registry, key) {}

    // The stored record; its defaults where none is stored or something else is.
    [[nodiscard]] Record load() const
    {
        const QVariant stored = Registry().value(Key());
        return stored.canConvert<Record>() ? stored.value<Record>() : Record();
    }

    // The same, where another process may have stored it meanwhile.
    [[nodiscard]] Record LoadLatest() const
    {
        Registry().Refresh(Key());
        return load();
    }

    // What could not be read of the record before is over.
    void save(Record record)
    {
        if constexpr (requires { record.unread; })
            record.unread = {};
        Registry().setValue(Key(), QVariant::fromValue(std::move(record)));
    }
};

// Where a window stood, and how its parts were arranged, in the toolkit's own form.
struct WindowData
{
    QByteArray geometry;
    QByteArray state;

    bool operator==(const WindowData&) const = default;
};

QDataStream& operator<<(QDataStream& out, const WindowData& data);
QDataStream& operator>>(QDataStream& in, WindowData& data);

class OptionWindowData final : public OptionDialogData<WindowData>
{
public:
    using OptionDialogData::OptionDialogData;
};

} // namespace Glyphor
