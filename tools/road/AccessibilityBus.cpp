#include "tools/road/AccessibilityBus.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusReply>
#include <QDBusVariant>

#include <stdexcept>

namespace mirelle::road {
namespace {

constexpr const char* kAccessible = "org.a11y.atspi.Accessible";
constexpr const char* kComponent = "org.a11y.atspi.Component";
constexpr const char* kText = "org.a11y.atspi.Text";
constexpr const char* kRoot = "/org/a11y/atspi/accessible/root";
constexpr unsigned kOnTheScreen = 0; // extents count from the screen's corner
constexpr unsigned kCheckedBit = 4;  // of a widget's state

struct Reference {
    QString bus;
    QDBusObjectPath path;
};

QDBusArgument& operator<<(QDBusArgument& to, const Reference& reference) {
    to.beginStructure();
    to << reference.bus << reference.path;
    to.endStructure();
    return to;
}

const QDBusArgument& operator>>(const QDBusArgument& from, Reference& reference) {
    from.beginStructure();
    from >> reference.bus >> reference.path;
    from.endStructure();
    return from;
}

} // namespace

// Calls into the program. What has gone in the meantime answers with nothing.
class AccessibilityBus::Calls {
public:
    Calls() : connection_(Connect()) {
        qDBusRegisterMetaType<Reference>();
        qDBusRegisterMetaType<QList<Reference>>();
    }

    std::vector<std::string> Children(const std::string& object) const {
        std::vector<std::string> children;
        const QVariant answer = Call(object, kAccessible, "GetChildren");
        if (!answer.isValid()) return children;
        for (const Reference& child : qdbus_cast<QList<Reference>>(answer))
            children.push_back(Join(child.bus, child.path.path()));
        return children;
    }

    std::string Name(const std::string& object) const {
        const QVariant answer = Call(object, "org.freedesktop.DBus.Properties", "Get",
                                     {QString::fromLatin1(kAccessible), QStringLiteral("Name")});
        return qvariant_cast<QDBusVariant>(answer).variant().toString().toStdString();
    }

    std::string Role(const std::string& object) const {
        return Call(object, kAccessible, "GetRoleName").toString().toStdString();
    }

    Place Extents(const std::string& object) const {
        Place place;
        const QVariant answer = Call(object, kComponent, "GetExtents", {kOnTheScreen});
        if (!answer.isValid()) return place;
        const auto extents = qvariant_cast<QDBusArgument>(answer);
        extents.beginStructure();
        extents >> place.x >> place.y >> place.width >> place.height;
        extents.endStructure();
        return place;
    }

    std::string Text(const std::string& object) const {
        return Call(object, kText, "GetText", {0, -1}).toString().toStdString();
    }

    bool HasState(const std::string& object, unsigned bit) const {
        const QVariant answer = Call(object, kAccessible, "GetState");
        if (!answer.isValid()) return false;
        const auto words = qdbus_cast<QList<uint>>(answer);
        return !words.isEmpty() && (words[0] >> bit & 1) != 0;
    }

    std::string Program(const std::string& name) const {
        for (const std::string& program : Children(Join("org.a11y.atspi.Registry", kRoot)))
            if (Name(program) == name) return program;
        return {};
    }

private:
    static std::string Join(const QString& bus, const QString& path) {
        return (bus + ' ' + path).toStdString();
    }

    static QDBusConnection Connect() {
        const QDBusMessage question =
            QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress");
        const QDBusReply<QString> address = QDBusConnection::sessionBus().call(question);
        if (!address.isValid()) throw std::runtime_error("there is no accessibility bus");
        return QDBusConnection::connectToBus(address.value(), "accessibility");
    }

    QVariant Call(const std::string& object, const char* interface, const char* method,
                  const QVariantList& arguments = {}) const {
        const QStringList parts = QString::fromStdString(object).split(' ');
        QDBusMessage call = QDBusMessage::createMethodCall(parts[0], parts[1], interface, method);
        call.setArguments(arguments);
        const QDBusMessage answer = connection_.call(call, QDBus::Block);
        return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0) : QVariant();
    }

    QDBusConnection connection_;
};

AccessibilityBus::AccessibilityBus() : calls_(std::make_unique<Calls>()) {
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
}

AccessibilityBus::~AccessibilityBus() = default;

std::string AccessibilityBus::Program(const std::string& name) {
    return calls_->Program(name);
}

std::vector<Widget> AccessibilityBus::Children(const std::string& object) {
    std::vector<Widget> children;
    for (const std::string& child : calls_->Children(object)) {
        const Place place = calls_->Extents(child);
        if (place.width > 0) children.push_back({child, calls_->Role(child), calls_->Name(child), place});
    }
    return children;
}

std::string AccessibilityBus::Text(const std::string& object) {
    return calls_->Text(object);
}

bool AccessibilityBus::IsChecked(const std::string& object) {
    return calls_->HasState(object, kCheckedBit);
}

} // namespace mirelle::road
