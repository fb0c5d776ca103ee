#include "fx/Contrast.h"

#include "forms/Numbers.h"
#include "forms/RunTimeError.h"
#include "fx/ByteMe.h"

#include <string>
#include <type_traits>
#include <variant>

namespace mirelle {
namespace {

// (offset x percent) \ 100, of a percent that is a number.
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

Contrast::Contrast(const Variant& percent, FXForm form) {
    for (int channel = 0; channel < 256; ++channel) {
        table_[static_cast<std::size_t>(channel)] = static_cast<std::uint8_t>(channel);
    }
    double number = 0;
    ResumeNext([&] {
        number = percent.Number(); // a text that is no number fails here, for all channels
        const bool isText = std::holds_alternative<std::string>(percent.Get());
        const Variant factor = isText ? Variant(number) : percent;
        for (std::uint8_t& entry : table_)
            entry = Contrasted(entry, factor);
    });
    if (form == FXForm::Fast) line_ = fast::FitContrastLine(table_, number / 100);
}

void Contrast::Apply(std::span<const Pixel> source, std::span<Pixel> destination) const {
    if (line_) return fast::ContrastByLine(*line_, source.data(), destination.data(), source.size());
    for (std::size_t i = 0; i < source.size(); ++i) {
        const Pixel& pixel = source[i];
        destination[i] = {table_[pixel.blue], table_[pixel.green], table_[pixel.red], 0};
    }
}

} // namespace mirelle
