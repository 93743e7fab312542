#pragma once

#include <QGenericPlugin>

namespace bench {

/// Ends the program that has loaded it, with status 0, as soon as a window of its has been painted
/// for the first time. The toolkit loads it into any program when QT_QPA_GENERIC_PLUGINS names
/// "firstpaint" and QT_PLUGIN_PATH its folder, so the program measured needs no hook.
class CFirstPaintPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "FirstPaint.json")

public:
    QObject* create(const QString& key, const QString& specification) override;
};

}
