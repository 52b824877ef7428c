// Which columns of the table are seen, whatever it shows.
#include "support/window_test.h"
#include "window/grid_layouts.h"

namespace vanzer {

using GridLayouts = WindowTest;

TEST_F(GridLayouts, ShowTheirColumnsAndNoOthers) {
    startAnew();
    const struct {
        Disposizione layout;
        const Grid& grid;
        int lastColumn;
    } cases[] = {{Disposizione::Tappe, form().mfgTab, 12},
                 {Disposizione::Guida, form().mfgTab, 6},
                 {Disposizione::TappeDaCopiare, form().mfgCopia, 5},
                 {Disposizione::Mete, form().mfgCopia, 2},
                 {Disposizione::RigheDiLavoro, form().mfgCopia, 12}};
    for (const auto& c : cases) {
        ImpostaGriglia(form(), c.layout);
        for (int column = 0; column < c.grid.columns(); ++column)
            EXPECT_EQ(c.grid.columnWidth(column) > 0, column <= c.lastColumn)
                << static_cast<int>(c.layout) << ": " << column;
    }
}

} // namespace vanzer
