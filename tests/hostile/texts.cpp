#include "hostile/texts.h"

namespace vanzer::hostile {

using namespace Qt::StringLiterals;

const QStringList& texts() {
    static const QStringList all =
        // Blanks, quotes, patterns, brackets.
        (u"| |   |x|'|''|\"|`|L'AQUILA|O'; DROP TABLE Itinerari; --|*|?|#|%|_|[A-Z]*|[!a]|[|]|(|)|ROMA (X)|ROMA (Y|(X)|"
         u" (notte)|> a Roma|*VV|[10-20]|[Park: 7]|#commento|(svincolo) (2)|^|a^b|a\\\\b|\\n|riga\\nriga|\\t|a\\tb|"
         // Numbers, hours, dates.
         u"-5|-|+|0|00|000|007|1|9|24|25|59|60|99|999|9999|99999|999999|1.234|1,5|0.5|2147483647|-2147483648|32768|"
         u"99999999999999999999|1e999|1e5|1d3|&HFF|NaN|inf|3,14159265358979|-0,5|4294967296|00012|12,|000001|24:00|99:"
         u"99|"
         u"00:00|12.30|2400|01:30|31/02/2003|29/02/2100|29/02/2000|01012003|00/00/0000|\u0661\u0662|"
         // What means something somewhere.
         u"G1|G8|G9|A-B|--|B-A-a|Rif. 3, cs|db|DB12|TRAGH|A1|SS16|Autostrada|AUTOSTRADA DEL SOLE|True|Falso|Ottimo|"
         u"Campeggio|DIARI DI BORDO|"
         // Letters of every kind.
         u"Città di Forlì è più "
         u"là|ŁÓDŹ|Αθήνα|ß|İstanbul|e\u0301\u0300|😀🚐|\u202Eatrabla|ÿþý|aÿbþcýd|\u0001\u0007|\u007F|"
         u"\uFFFD|\uFEFF|\u05E9\u05DC\u05D5\u05DD|\u200D\u200B|\u2028|\u00A0"_s)
            .split(u'|') +
        QStringList{QString(300, u'l'),
                    QString(5000, u'à'),
                    QString(5000, u'9'),
                    QString(96, u'\''),
                    QString(64, u'*'),
                    QString(30, u'('),
                    QString(30, QChar(0x301)),
                    QString(QChar(0xD800)),
                    QString::fromLatin1("a\0b", 3),
                    u"TRAGH "_s.repeated(20),
                    u"👨\u200D👩\u200D👧"_s.repeated(12),
                    u"x"_s + u"🚐"_s.repeated(60)};
    return all;
}

const QStringList& marks() {
    static const QStringList all =
        u" [Start]| [End]|ROMA [Start]|CASA [Start] [End]|[End]|[start][START]|ROMA (X) [Start]|BOLOGNA [End] [Start]"_s
            .split(u'|');
    return all;
}

const QStringList& places() {
    static const QStringList all = u"ROMA|ROMA NORD|BOLOGNA|L'AQUILA|HELSINKI|LÜBECK|TRAVEMÜNDE|CAPO NORD|ROMA (PARK)|"
                                   u"CASA|San Marino|ALTA|BOLOGNA"_s.split(u'|');
    return all;
}

const QStringList& keyCodes() {
    static const QStringList all = u"0 8 9 10 13 27 32 33 34 35 36 37 38 39 40 46 48 65 97 112 8364 55296 1114111 "
                                   u"1114112 -1"_s.split(u' ');
    return all;
}

const QStringList& files() {
    static const QStringList all =
        u"giri.iei tronco.iei rotto.bin vuoto.txt nuovo.iei whole.iei quotes_and_breaks.iei odd_codes.iei twice.iei "
        u"doppio.iei long_texts.iei wide.iei separators_in_names.iei no_heads.iei scozia.txt scozia.csv grecia.txt "
        u"grecia.csv portogallo.txt portogallo.csv brackets.txt missing_columns.txt odd_numbers.csv parts.csv "
        u"manca.txt "
        u"cartella nuovo.pdf cartella/nuovo.iei manca/x.iei - Vanzer.mdb ./Vanzer.mdb nuovo.pdf"_s.split(u' ');
    return all;
}

} // namespace vanzer::hostile
