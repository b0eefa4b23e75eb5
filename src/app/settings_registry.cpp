#include "app/settings_registry.h"

namespace Glyphor {

SettingsRegistry::SettingsRegistry(std::unique_ptr<QSettings> store) : store_(std::move(store)) {}

void SettingsRegistry::RegisterDefault(const QString& key, const QVariant& value)
{
    defaults_.insert(key, value);
    if (store_->contains(key))
        current_.insert(key, store_->value(key));
}

QVariant SettingsRegistry::value(const QString& key) const
{
    const auto current = current_.constFind(key);
    if (current != current_.constEnd())
        return *current;
    return store_->value(key, defaults_.value(key));
}

void SettingsRegistry::setValue(const QString& key, const QVariant& value)
{
    current_.insert(key, value);
    store_->setValue(key, value);
}

void SettingsRegistry::Refresh(const QString& key)
{
    store_->sync();
    if (store_->contains(key))
        current_.insert(key, store_->value(key));
}

} // namespace Glyphor
