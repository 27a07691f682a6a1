#include "map_import/import_feature.h"

QString ImportFeature::property(const QStringList &names) const
{
    for (const QString &name : names) {
        for (const auto &[key, value] : properties) {
            if (key.compare(name, Qt::CaseInsensitive) == 0 && !value.trimmed().isEmpty()) {
                return value.trimmed();
            }
        }
    }
    return {};
}
