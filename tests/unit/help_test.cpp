// The messages of the help as message boxes of the platform take them.
#include <gtest/gtest.h>

#include "help/messages.h"

namespace vanzer {

TEST(Help, EveryLineFeedHasItsCarriageReturn) {
    using namespace Qt::StringLiterals;
    for (const QString& text :
         {aiutoComandi(), aiutoMetodo(), aiutoDatiMeta(), aiutoTempiTecnici(), aiutoCampiTappa(), aiutoPulsantiTappa(0),
          aiutoAltriPacchetti(), aiutoCopiaTratto(), aiutoImportExport(), aiutoPulsantiGuida(), aiutoCampiGuida()}) {
        EXPECT_GT(text.count(u'\n'), 0);
        EXPECT_EQ(text.count(u'\n'), text.count(u"\r\n"_s)) << text.toStdString();
    }
}

} // namespace vanzer
