#include "tools/road/ShownWidgets.h"

#include "tools/road/Await.h"

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
class ShownWidgets::Bus {
public:
    Bus() : connection_(Connect()) {
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

ShownWidgets::ShownWidgets(std::string program)
    : bus_(std::make_unique<Bus>()), program_(std::move(program)) {
    qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
}

ShownWidgets::~ShownWidgets() = default;

std::vector<Widget> ShownWidgets::In(const Widget& widget) const {
    std::vector<Widget> inside;
    for (const std::string& object : bus_->Children(widget.object)) {
        const Place place = bus_->Extents(object);
        if (place.width > 0) inside.push_back({object, bus_->Role(object), bus_->Name(object), place});
    }
    return inside;
}

std::optional<Widget> ShownWidgets::Find(const std::function<bool(const Widget&)>& fits) const {
    const std::function<std::optional<Widget>(const Widget&)> look = [&](const Widget& around) {
        for (const Widget& widget : In(around)) {
            if (fits(widget)) return std::optional(widget);
            if (auto inner = look(widget)) return inner;
        }
        return std::optional<Widget>();
    };
    const std::string program = bus_->Program(program_);
    if (program.empty()) return std::nullopt;
    return look({program, {}, {}, {}});
}

std::optional<Widget> ShownWidgets::Find(const std::string& role, const std::string& name) const {
    return Find([&](const Widget& widget) { return widget.role == role && widget.name == name; });
}

Widget ShownWidgets::Await(const std::string& role, const std::string& name) const {
    std::optional<Widget> found;
    road::Await("the " + role + " \"" + name + '"', [&] { return (found = Find(role, name)).has_value(); });
    return *found;
}

std::string ShownWidgets::TextOf(const Widget& field) const {
    return bus_->Text(field.object);
}

bool ShownWidgets::IsChecked(const Widget& box) const {
    return bus_->HasState(box.object, kCheckedBit);
}

} // namespace mirelle::road
