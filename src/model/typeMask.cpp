#include "model/typeMask.h"

namespace zdt {

unsigned generationIndex(TypeMask mask) {
    for (unsigned index = 0; index < generationCount; ++index) {
        if (mask & generationBit(index))
            return index;
    }
    return unknownGeneration;
}

TypeMask generationBit(unsigned index) {
    return index < generationCount ? typeMask::generation5 << index : 0;
}

} // namespace zdt
