#include "controls/Drawing.h"

namespace zy {

std::vector<double> DashesOf(Stroke stroke) {
    switch (stroke) {
    case Stroke::Dashed:
        return {5, 3};
    case Stroke::Dotted:
        return {1, 2};
    case Stroke::DashDotted:
        return {6, 2, 1, 2};
    case Stroke::LongDashed:
        return {12, 4};
    case Stroke::Solid:
        break;
    }
    return {};
}

} // namespace zy
