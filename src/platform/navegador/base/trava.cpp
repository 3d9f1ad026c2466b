#include "platform/base/trava.h"

#include "platform/base/pagina.h"

namespace verdalia {

bool trava_partida() {
    return pagina_trava() != 0;
}

} // namespace verdalia
