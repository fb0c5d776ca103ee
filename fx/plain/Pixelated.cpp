#include "fx/plain/PlainFrame.h"
#include "fx/plain/PlainKernels.h"

namespace mirelle::plain {
namespace {

// One pixel around the centre: where it lies, and its working values.
struct Neighbour {
    int dx;
    int dy;
    Triple values{};
};

} // namespace

// The mean of the centre with eight neighbours. The last three neighbours are the top row once more, and not
// the row below; three of the means take a channel of another colour. Both are the effect's look.
void FXPixelated(const KernelFrame& frame, const KernelArguments&) {
    const PlainFrame picture(frame);
    Triple centre;
    std::array<Neighbour, 8> around{{
        {-1, -1}, // NW
        {0, -1},  // N
        {1, -1},  // NE
        {-1, 0},  // L
        {1, 0},   // E
        {-1, -1}, // NW2
        {0, -1},  // N2
        {1, -1},  // NE2
    }};
    Triple& nw = around[0].values;
    Triple& n = around[1].values;
    Triple& l = around[3].values;
    const auto mean = [](Integer a, Integer b) { return Rnd((a + b).Value() / 2.0); };

    for (int y = 0; y < picture.Height(); y += 2) {
        for (int x = 0; x < picture.Width(); x += 2) {
            picture.Read(centre, x, y);
            for (Neighbour& neighbour : around) {
                picture.Read(neighbour.values, x + neighbour.dx, y + neighbour.dy);
            }
            for (Neighbour& neighbour : around) {
                Triple& t = neighbour.values;
                EachChannel([&](Channel channel) {
                    ResumeNext([&] {
                        if (&t == &nw && channel == kBlue) {
                            t[kBlue] = mean(centre[kBlue], nw[kGreen]); // the green just averaged
                        } else if (&t == &n && channel == kRed) {
                            t[kRed] = mean(centre[kRed], n[kGreen]); // the green not yet averaged
                        } else if (&t == &l && channel == kGreen) {
                            t[kGreen] = mean(centre[kRed], l[kGreen]);
                        } else {
                            t[channel] = mean(centre[channel], t[channel]);
                        }
                    });
                });
            }
            EachChannel([&](Channel channel) { Clamp(centre[channel]); });
            for (Neighbour& neighbour : around) {
                EachChannel([&](Channel channel) { Clamp(neighbour.values[channel]); });
            }
            picture.Store(x, y, centre);
            for (const Neighbour& neighbour : around) {
                picture.Store(x + neighbour.dx, y + neighbour.dy, neighbour.values);
            }
        }
    }
}

} // namespace mirelle::plain
