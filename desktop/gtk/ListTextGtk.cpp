#include "desktop/ListText.h"

#include <wx/dataview.h>

namespace zy {

wxDataViewTextRenderer* MakeListText() {
    return new wxDataViewTextRenderer;
}

} // namespace zy
