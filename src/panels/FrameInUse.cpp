#include "panels/FrameInUse.h"

#include "platform/ui/Frame.h"

namespace quillmere {

void moveFrame(ui::Frame& frame, int left) {
    ui::Rect place = frame.geometry();
    place.left = left;
    frame.setGeometry(place);
}

} // namespace quillmere
