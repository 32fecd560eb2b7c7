#include "monkey/Monkey.h"

#include <QGenericPlugin>

namespace keltavlo {

// Qt loads this into the unchanged program if QT_QPA_GENERIC_PLUGINS is monkey:EVENTS:SEED.
class MonkeyPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "monkey.json")

public:
    QObject* create(const QString&, const QString& specification) override {
        const QStringList numbers = specification.split(':');
        return new Monkey(numbers.value(0).toInt(), numbers.value(1).toUInt());
    }
};

} // namespace keltavlo

#include "MonkeyPlugin.moc"
