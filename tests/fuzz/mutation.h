// Inputs made from a corpus: the same number makes the same input, on every machine.
#pragma once

#include <cstdint>
#include <random>
#include <vector>

#include <QByteArray>

namespace vanzer::fuzz {

class Mutator {
  public:
    /// The corpus isn't empty.
    explicit Mutator(std::vector<QByteArray> corpus) : corpus_(std::move(corpus)) {}

    [[nodiscard]] QByteArray input(std::uint64_t number);

  private:
    void mutate(QByteArray& bytes);
    [[nodiscard]] qsizetype below(qsizetype limit);
    [[nodiscard]] char likelyByte();
    void changeByte(QByteArray& bytes);
    void insertBytes(QByteArray& bytes);
    void removeRange(QByteArray& bytes);
    void repeatRange(QByteArray& bytes);
    void moveLine(QByteArray& bytes);
    void splice(QByteArray& bytes);
    void recode(QByteArray& bytes);

    std::vector<QByteArray> corpus_;
    std::mt19937_64 chance_;
};

} // namespace vanzer::fuzz
