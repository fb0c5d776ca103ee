#include "fx/Contrast.h"

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"
#include "fx/ByteMe.h"

#include <type_traits>
#include <variant>

namespace mirelle {
namespace {

// (offset x percent) \ 100
Long ScaledOffset(Integer offset, const Variant& percent) {
    const auto quotient = [&](const auto& value) -> Long {
        using Value = std::decay_t<decltype(value)>;
        if constexpr (std::is_same_v<Value, Variant::Empty>) {
            return 0;
        } else if constexpr (std::is_same_v<Value, bool>) {
            return (offset * Integer(value ? -1 : 0)).Value() / 100;
        } else if constexpr (std::is_same_v<Value, Integer>) {
            return (offset * value).Value() / 100;
        } else if constexpr (std::is_same_v<Value, Long>) {
            return Long(offset.Value()) * value / Long(100);
        } else if constexpr (std::is_same_v<Value, float>) {
            return ToLong(static_cast<float>(offset.Value()) * value) / 100;
        } else {
            return ToLong(offset.Value() * percent.Number()) / 100;
        }
    };
    return std::visit(quotient, percent.Get());
}

std::uint8_t Contrasted(std::uint8_t channel, const Variant& percent) {
    Integer c = channel;
    ResumeNext([&] {
        const Long sum = Long(c.Value()) + ScaledOffset(c - Integer(127), percent);
        c = Integer::From(sum.Value());
    });
    ByteMe(c);
    return static_cast<std::uint8_t>(c.Value());
}

} // namespace

std::int16_t GetRed(Color color) {
    return static_cast<std::int16_t>(color % 256);
}
std::int16_t GetGreen(Color color) {
    return static_cast<std::int16_t>((color / 256) & 255);
}
std::int16_t GetBlue(Color color) {
    return static_cast<std::int16_t>((color / 65536) & 255);
}

Contrast::Contrast(const Variant& percent) {
    for (int channel = 0; channel < 256; ++channel) {
        const auto byte = static_cast<std::uint8_t>(channel);
        table_[byte] = Contrasted(byte, percent);
    }
}

void Contrast::Apply(std::span<const Pixel> source, std::span<Pixel> destination) const {
    for (std::size_t i = 0; i < source.size(); ++i) {
        const Pixel& pixel = source[i];
        destination[i] = {table_[pixel.blue], table_[pixel.green], table_[pixel.red], 0};
    }
}

} // namespace mirelle
