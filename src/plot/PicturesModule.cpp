#include "plot/PicturesModule.h"

#include "plot/ToolkitPictures.h"

extern "C" vorlan::Pictures* vorlanPictures();

vorlan::Pictures* vorlanPictures() {
    return vorlan::toolkitPictures().release();
}
