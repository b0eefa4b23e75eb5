#pragma once

#include <QHash>
#include <QSettings>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <optional>

namespace Glyphor {

// The one store of all settings: their defaults, their current values, and the names of the dialog
// records. A store that can't be read counts as empty.
class SettingsRegistry
{
public:
    explicit SettingsRegistry(std::unique_ptr<QSettings> store);
    SettingsRegistry(const SettingsRegistry&) = delete;
    SettingsRegistry& operator=(const SettingsRegistry&) = delete;

    void registerDefault(const QString& key, const QVariant& value);
    void registerGroup(const QString& key);

    // The stored value, or the default, or nothing.
    [[nodiscard]] QVariant value(const QString& key) const;
    void setValue(const QString& key, const QVariant& value);

    // In the order of registration.
    [[nodiscard]] const QStringList& keys() const { return keys_; }
    [[nodiscard]] const QStringList& groups() const { return groups_; }

protected:
    ~SettingsRegistry() = default;

private:
    std::unique_ptr<QSettings> store_;
    QHash<QString, QVariant> defaults_;
    QHash<QString, QVariant> current_;
    QStringList keys_;
    QStringList groups_;
};

} // namespace Glyphor
