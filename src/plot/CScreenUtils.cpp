#include "plot/CScreenUtils.h"

namespace vorlan {

bool CScreenUtils::contains(int px, int py) const {
    return overXRange(px) && py <= originY && py >= originY - height;
}

}  // namespace vorlan
