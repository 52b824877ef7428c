// SPDX-License-Identifier: MIT
// The search for the factor of the guide's stops that makes a trip last the wanted days. It changes the factor in steps
// that are halved after each test.
#pragma once

namespace vanzer {

struct DatiAdeguamento {
    double valoreMemorizzato = 0; ///< the factor that fitted last
    int giorniGuida = 1;          ///< days that driving alone needs
    float oreGuidaGiorno = 0;     ///< driving time of a day, hundredths of an hour; renewed by each series of tests
    float sosteTotali = 0; ///< all stops, hundredths of an hour; 0 if driving alone needs more than the wanted days
};

/// The days that driving alone needs, at least 1. Both times are hundredths of an hour.
[[nodiscard]] int giorniDiGuida(int drivingTime, float oreGuidaGiorno);

/// The factor that a fresh search starts with: the wanted time divided by the time needed with factor 1. It is 1 if no
/// larger factor helps.
[[nodiscard]] double coefficienteDiPartenza(const DatiAdeguamento& data, int giorniDesiderati);

class Adeguamento {
  public:
    static constexpr int massimoTest = 20; ///< no more tests once more than so many have begun

    enum class Fine {
        InCorso,
        SenzaAdeguamento, ///< no days are wanted, or no stop can be stretched
        Raggiunto,
        Impossibile ///< the tests are used up
    };
    enum class Passo {
        Prova,     ///< run a test with coefficiente()
        NuovaSerie ///< the start value failed: read the parameters again, then begin a series
    };

    explicit Adeguamento(const DatiAdeguamento& data) : data_(data), partenza_(data.valoreMemorizzato) {}

    /// Begins a series of tests. `oreGuidaGiorno` is the present driving time of a day, hundredths of an hour.
    void startSeries(float oreGuidaGiorno);
    /// What to do next, from the days that the last test needed.
    [[nodiscard]] Passo prossimo(int giorniCalcolati, int giorniDesiderati, bool conSoste);
    /// Whether the search ends with the last test, and how.
    [[nodiscard]] Fine esito(int giorniCalcolati, int giorniDesiderati) const;

    [[nodiscard]] float coefficiente() const { return coefficiente_; }
    [[nodiscard]] int numeroTest() const { return numeroTest_; }

  private:
    void change(int giorniCalcolati, int giorniDesiderati);

    DatiAdeguamento data_;
    double partenza_;
    float coefficiente_ = 0;
    double passo_ = 0.5;
    int numeroTest_ = 0;
    bool daCapo_ = false; ///< the search has already started afresh
};

} // namespace vanzer
