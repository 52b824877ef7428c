// The columns of the table while it holds legs; a schedule has the same heads.
#pragma once

namespace vanzer {

enum ColonnaTappa {
    tappaNumero,
    tappaLuogo, ///< with the marks of the stretch
    tappaStrada,
    tappaKm, ///< from the row above
    tappaTipo,
    tappaKmProgressivi,
    tappaTempo, ///< driving
    tappaSosta, ///< gg:hh:mm, "*" in front for the end of the day
    tappaGuida, ///< stops of the guide in all, gg:hh:mm
    tappaGiorno,
    tappaData,
    tappaOra,
    tappaNote,
    tappaFineGiorno = 14 ///< as it was loaded
};

} // namespace vanzer
