#pragma once

#include <cstdint>
#include <random>

namespace vorlund {

/// The game's chance. Rules take it as an argument, so that a written-out script of values can stand in.
class Random {
public:
    virtual ~Random() = default;

    /// The next uniform value u, 0 <= u < 1, in single precision.
    virtual float Uniform() = 0;

    /// Starts a new sequence from the clock.
    virtual void Reseed() = 0;

    /// A draw over n >= 0: the largest whole number not above u * n for a fresh u, 0 to n - 1; over 0 it is
    /// 0.
    int Draw(int n);
};

/// The generator of the running game. Two reseedings within one tick of the clock still give different
/// sequences, for a counter goes into the seed as well.
class ClockRandom final : public Random {
public:
    ClockRandom() { Reseed(); }

    /// A fixed first sequence, for programs that must be able to play a game again.
    explicit ClockRandom(std::uint32_t seed) : engine_(seed) {}

    float Uniform() override;
    void Reseed() override;

private:
    std::mt19937 engine_;
    std::uint32_t reseedings_ = 0;
};

}  // namespace vorlund
