#include "objects/Check.h"

#include "document/TemplateDesc.h"

namespace lw {

bool IsMeasuredFromPrimaryLink(std::int32_t checkType) {
    return checkType == CheckRange || checkType == CheckInRadius || checkType == CheckInSector;
}

} // namespace lw
