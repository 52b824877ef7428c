// SPDX-License-Identifier: MIT
// Columns of the table while it holds legs. A schedule has the same headings.
#pragma once

namespace vanzer {

enum ColonnaTappa {
    tappaNumero,
    tappaLuogo, ///< name and stretch marks
    tappaStrada,
    tappaKm, ///< kilometres from the row above
    tappaTipo,
    tappaKmProgressivi,
    tappaTempo, ///< driving time
    tappaSosta, ///< stop, gg:hh:mm; "*" in front ends the day
    tappaGuida, ///< total stops of the guide, gg:hh:mm
    tappaGiorno,
    tappaData,
    tappaOra,
    tappaNote,
    tappaFineGiorno = 14 ///< end of the day as it was loaded
};

} // namespace vanzer
