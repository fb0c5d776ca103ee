#include "desktop/look/SvgPath.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numbers>

namespace mirelle::look {

namespace {

constexpr double kGreatestNumber = 1e6; // keeps every sum and product of the arithmetic finite

// Takes numbers, flags and commands off the front of a text.
class Scanner {
public:
    explicit Scanner(std::string_view text) : rest_(text) {}

    bool AtEnd() {
        SkipBlanks();
        return rest_.empty();
    }

    std::optional<char> Command() {
        SkipBlanks();
        if (rest_.empty() || !IsLetter(rest_.front())) return std::nullopt;
        const char command = rest_.front();
        rest_.remove_prefix(1);
        return command;
    }

    bool NumberFollows() {
        SkipSeparators();
        return !rest_.empty() && !IsLetter(rest_.front());
    }

    std::optional<double> Number() {
        SkipSeparators();
        if (!rest_.empty() && rest_.front() == '+') rest_.remove_prefix(1);
        const std::size_t first = rest_.starts_with('-') ? 1 : 0;
        if (first >= rest_.size() || IsLetter(rest_[first])) return std::nullopt; // "inf" and "nan" are none
        double value = 0;
        const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
        if (error != std::errc() || std::abs(value) > kGreatestNumber) return std::nullopt;
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        return value;
    }

    // The flags of an arc may stand without a separator: "a1 1 0 01.5.5".
    std::optional<bool> Flag() {
        SkipSeparators();
        if (rest_.empty() || (rest_.front() != '0' && rest_.front() != '1')) return std::nullopt;
        const bool value = rest_.front() == '1';
        rest_.remove_prefix(1);
        return value;
    }

private:
    static bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
    static bool IsBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

    void SkipBlanks() {
        while (!rest_.empty() && IsBlank(rest_.front()))
            rest_.remove_prefix(1);
    }
    void SkipSeparators() {
        SkipBlanks();
        if (!rest_.empty() && rest_.front() == ',') {
            rest_.remove_prefix(1);
            SkipBlanks();
        }
    }

    std::string_view rest_;
};

// One command with all of its repetitions. Each step returns false where the text does not hold what it
// needs.
class PathReader {
public:
    explicit PathReader(std::string_view text) : scanner_(text) {}

    std::optional<QPainterPath> Read() {
        while (!scanner_.AtEnd()) {
            const std::optional<char> command = scanner_.Command();
            if (!command || !Run(*command)) return std::nullopt;
        }
        return path_;
    }

private:
    bool Run(char command) {
        relative_ = command >= 'a';
        const char kind = static_cast<char>(relative_ ? command - 'a' + 'A' : command);
        if (kind == 'Z') return Close();
        if (kind != 'M' && !begun_) return false; // path data begins with a move
        if (!Step(kind)) return false;
        const char next = kind == 'M' ? 'L' : kind; // further pairs of a move are lines
        while (scanner_.NumberFollows()) {
            if (!Step(next)) return false;
        }
        return true;
    }

    bool Step(char kind) {
        switch (kind) {
        case 'M':
            return Move();
        case 'L':
            return Line();
        case 'H':
            return Horizontal();
        case 'V':
            return Vertical();
        case 'C':
            return Cubic();
        case 'Q':
            return Quadratic();
        case 'A':
            return ArcStep();
        default:
            return false;
        }
    }

    std::optional<QPointF> Point() {
        const std::optional<double> x = scanner_.Number();
        const std::optional<double> y = x ? scanner_.Number() : std::nullopt;
        if (!y) return std::nullopt;
        return QPointF(*x, *y) + (relative_ ? path_.currentPosition() : QPointF());
    }

    bool Move() {
        const std::optional<QPointF> to = Point();
        if (to) path_.moveTo(*to);
        begun_ = begun_ || to.has_value();
        return to.has_value();
    }

    bool Line() {
        const std::optional<QPointF> to = Point();
        if (to) path_.lineTo(*to);
        return to.has_value();
    }

    bool Horizontal() {
        const std::optional<double> x = scanner_.Number();
        const QPointF from = path_.currentPosition();
        if (x) path_.lineTo(*x + (relative_ ? from.x() : 0.0), from.y());
        return x.has_value();
    }

    bool Vertical() {
        const std::optional<double> y = scanner_.Number();
        const QPointF from = path_.currentPosition();
        if (y) path_.lineTo(from.x(), *y + (relative_ ? from.y() : 0.0));
        return y.has_value();
    }

    bool Cubic() {
        const std::optional<QPointF> first = Point();
        const std::optional<QPointF> second = first ? Point() : std::nullopt;
        const std::optional<QPointF> to = second ? Point() : std::nullopt;
        if (to) path_.cubicTo(*first, *second, *to);
        return to.has_value();
    }

    bool Quadratic() {
        const std::optional<QPointF> control = Point();
        const std::optional<QPointF> to = control ? Point() : std::nullopt;
        if (to) path_.quadTo(*control, *to);
        return to.has_value();
    }

    bool ArcStep() {
        const std::optional<double> across = scanner_.Number();
        const std::optional<double> down = across ? scanner_.Number() : std::nullopt;
        const std::optional<double> turn = down ? scanner_.Number() : std::nullopt;
        const std::optional<bool> large = turn ? scanner_.Flag() : std::nullopt;
        const std::optional<bool> sweep = large ? scanner_.Flag() : std::nullopt;
        const std::optional<QPointF> end = sweep ? Point() : std::nullopt;
        if (end) AddArc(path_, {QPointF(*across, *down), *turn, *large, *sweep, *end});
        return end.has_value();
    }

    bool Close() {
        if (!begun_) return false;
        path_.closeSubpath();
        return true;
    }

    Scanner scanner_;
    QPainterPath path_;
    bool relative_ = false;
    bool begun_ = false;
};

struct Centre {
    QPointF at;
    double startAngle = 0;
    double sweptAngle = 0;
};

double Cross(QPointF a, QPointF b) {
    return a.x() * b.y() - a.y() * b.x();
}
double AngleBetween(QPointF a, QPointF b) {
    return std::atan2(Cross(a, b), QPointF::dotProduct(a, b));
}

// From the end points to the centre: F.6.5, with the radii grown as F.6.6 tells.
Centre CentreOf(const Arc& arc, QPointF start, QPointF& radii) {
    const double turn = arc.turn * std::numbers::pi / 180.0;
    const double cosine = std::cos(turn);
    const double sine = std::sin(turn);
    const QPointF half = (start - arc.end) / 2.0;
    const QPointF prime(cosine * half.x() + sine * half.y(), -sine * half.x() + cosine * half.y());

    const double lambda =
        std::pow(prime.x() / radii.x(), 2.0) + std::pow(prime.y() / radii.y(), 2.0); // F.6.6.2
    if (lambda > 1.0) radii *= std::sqrt(lambda);

    const double rx = radii.x() * radii.x();
    const double ry = radii.y() * radii.y();
    const double under = rx * prime.y() * prime.y() + ry * prime.x() * prime.x();
    const double root = under > 0.0 ? std::sqrt(std::max(0.0, (rx * ry - under) / under)) : 0.0;
    const double sign = arc.large == arc.sweep ? -1.0 : 1.0;
    const QPointF centrePrime(sign * root * radii.x() * prime.y() / radii.y(),
                              -sign * root * radii.y() * prime.x() / radii.x()); // F.6.5.2

    Centre centre;
    centre.at = QPointF(cosine * centrePrime.x() - sine * centrePrime.y(),
                        sine * centrePrime.x() + cosine * centrePrime.y()) +
                (start + arc.end) / 2.0; // F.6.5.3
    const QPointF from((prime.x() - centrePrime.x()) / radii.x(), (prime.y() - centrePrime.y()) / radii.y());
    const QPointF to((-prime.x() - centrePrime.x()) / radii.x(), (-prime.y() - centrePrime.y()) / radii.y());
    centre.startAngle = AngleBetween(QPointF(1, 0), from);
    centre.sweptAngle = AngleBetween(from, to); // F.6.5.6, brought to the side that the sweep flag names
    if (arc.sweep && centre.sweptAngle < 0) centre.sweptAngle += 2 * std::numbers::pi;
    if (!arc.sweep && centre.sweptAngle > 0) centre.sweptAngle -= 2 * std::numbers::pi;
    return centre;
}

} // namespace

void AddArc(QPainterPath& path, const Arc& arc) {
    const QPointF start = path.currentPosition();
    if (start == arc.end) return; // F.6.2: such an arc is left out
    QPointF radii(std::abs(arc.radii.x()), std::abs(arc.radii.y()));
    if (radii.x() == 0.0 || radii.y() == 0.0) {
        path.lineTo(arc.end);
        return;
    }

    const Centre centre = CentreOf(arc, start, radii);
    const double turn = arc.turn * std::numbers::pi / 180.0;
    const auto turned = [&](QPointF unit) {
        const QPointF scaled(unit.x() * radii.x(), unit.y() * radii.y());
        return QPointF(std::cos(turn) * scaled.x() - std::sin(turn) * scaled.y(),
                       std::sin(turn) * scaled.x() + std::cos(turn) * scaled.y());
    };

    // Pieces of at most a quarter turn. A cubic whose arms are 4/3 tan(angle / 4) long touches the circle at
    // both ends and in the middle, and strays from it by less than 0.03% in between.
    const int pieces =
        std::max(1, static_cast<int>(std::ceil(std::abs(centre.sweptAngle) / (std::numbers::pi / 2) - 1e-9)));
    const double angle = centre.sweptAngle / pieces;
    const double arm = 4.0 / 3.0 * std::tan(angle / 4);
    for (int piece = 0; piece < pieces; ++piece) {
        const double a = centre.startAngle + piece * angle;
        const double b = a + angle;
        const QPointF from(std::cos(a), std::sin(a));
        const QPointF to(std::cos(b), std::sin(b));
        const QPointF leaving = from + arm * QPointF(-from.y(), from.x());
        const QPointF arriving = to - arm * QPointF(-to.y(), to.x());
        const QPointF end = piece + 1 == pieces ? arc.end : centre.at + turned(to);
        path.cubicTo(centre.at + turned(leaving), centre.at + turned(arriving), end);
    }
}

std::optional<QPainterPath> ReadPathData(std::string_view text) {
    return PathReader(text).Read();
}

std::optional<std::vector<double>> ReadNumbers(std::string_view text) {
    Scanner scanner(text);
    std::vector<double> numbers;
    while (!scanner.AtEnd()) {
        const std::optional<double> number = scanner.Number();
        if (!number) return std::nullopt;
        numbers.push_back(*number);
    }
    return numbers;
}

} // namespace mirelle::look
