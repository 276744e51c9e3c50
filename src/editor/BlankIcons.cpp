#include "editor/BlankIcons.h"

namespace iw {

BlankIconFormat BlankIconKind(int kind) {
    switch (kind) {
        case 1:
            return {16, 32, 0};
        case 2:
            return {48, 32, 0};
        case 3:
            return {256, 32, 1};
        default:
            return {32, 32, 0};
    }
}

}  // namespace iw
