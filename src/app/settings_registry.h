#pragma once

#include <QHash>
#include <QSettings>
#include <QVariant>

#include <memory>
#include <optional>

namespace Glyphor {

// The one store of all settings: their defaults and their current values. A store that can't be
// read counts as empty.
class SettingsRegistry
{
public:
    explicit SettingsRegistry(std::unique_ptr<QSettings> store);
    SettingsRegistry(const SettingsRegistry&) = delete;
    SettingsRegistry& operator=(const SettingsRegistry&) = delete;

    void RegisterDefault(const QString& key, const QVariant& value);

    // The stored value, or the default, or nothing.
    [[nodiscard]] QVariant value(const QString& key) const;
    void setValue(const QString& key, const QVariant& value);

    // Takes the value that another process may have stored.
    void Refresh(const QString& key);

    // Stores what was set, at once.
    void Flush() { store_->sync(); }

protected:
    ~SettingsRegistry() = default;

private:
    std::unique_ptr<QSettings> store_;
    QHash<QString, QVariant> defaults_;
    QHash<QString, QVariant> current_;
};

} // namespace Glyphor
