// The search for the multiplier of the guide's stops with which a trip lasts the wanted days: halving steps, one test a
// value.
#pragma once

namespace vanzer {

struct DatiAdeguamento {
    double valoreMemorizzato = 0; ///< the multiplier that fitted last
    int giorniGuida = 1;          ///< days of driving alone
    float oreGuidaGiorno = 0;     ///< hundredths; given anew with each series of tests
    float sosteTotali = 0;        ///< hundredths; 0 when the driving alone passes the wanted days
};

/// Days of driving alone, from the driving time in hundredths; at least 1.
[[nodiscard]] int giorniDiGuida(int drivingTime, float oreGuidaGiorno);

/// The multiplier that a fresh search starts from: wanted time over the time needed at 1, and 1 where that helps
/// nothing.
[[nodiscard]] double coefficienteDiPartenza(const DatiAdeguamento& data, int giorniDesiderati);

class Adeguamento {
  public:
    static constexpr int massimoTest = 20; ///< a search goes on while no more than so many have begun

    enum class Fine {
        InCorso,
        SenzaAdeguamento, ///< no days are wanted, or there is no stop to stretch
        Raggiunto,
        Impossibile ///< the tests are used up
    };
    enum class Passo {
        Prova,     ///< run a test with coefficiente()
        NuovaSerie ///< the start value failed: read the parameters anew, then begin again
    };

    explicit Adeguamento(const DatiAdeguamento& data) : data_(data), partenza_(data.valoreMemorizzato) {}

    /// A series of tests begins; `oreGuidaGiorno` is the driving time of a day as the parameters give it now.
    void startSeries(float oreGuidaGiorno);
    /// What to do next, from the days of the test before.
    [[nodiscard]] Passo prossimo(int giorniCalcolati, int giorniDesiderati, bool conSoste);
    /// Whether the test just run was the last.
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
    bool daCapo_ = false; ///< the search has started afresh
};

} // namespace vanzer
