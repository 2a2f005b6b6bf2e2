#pragma once
// Arrays of the model count from 1. Slot 0 of the stored list is never used; any index
// outside 1..n raises error 9 ("subscript out of range") instead of touching memory.

#include <cstddef>
#include <vector>

#include "model/Errores.h"

namespace trevalo {

template <typename T> class Arreglo {
  public:
    Arreglo() = default;
    explicit Arreglo(long n) { Redim(n); }

    // Resizes to slots 1..n with every slot at its zero value.
    void Redim(long n) { datos_.assign(Tamano(n), Celda{}); }
    // Resizes to slots 1..n keeping the slots that remain; new slots are zero.
    void RedimPreserve(long n) { datos_.resize(Tamano(n), Celda{}); }

    long Ubound() const { return static_cast<long>(datos_.size()); }

    T& operator()(long i) { return datos_[Indice(i)].valor; }
    const T& operator()(long i) const { return datos_[Indice(i)].valor; }

    bool operator==(const Arreglo&) const = default;

  private:
    // A wrapper keeps std::vector<bool> from packing bits, so every slot has an address.
    struct Celda {
        T valor{};
        bool operator==(const Celda&) const = default;
    };

    static std::size_t Tamano(long n) { return n > 0 ? static_cast<std::size_t>(n) : 0; }
    std::size_t Indice(long i) const {
        if (i < 1 || i > Ubound()) throw ErrorTrevalo::SubindiceFueraDeIntervalo();
        return static_cast<std::size_t>(i - 1);
    }

    std::vector<Celda> datos_;
};

// Two-index array (span, slot), both from 1.
template <typename T> class Arreglo2 {
  public:
    Arreglo2() = default;
    Arreglo2(long n1, long n2) { Redim(n1, n2); }

    void Redim(long n1, long n2) {
        n1_ = n1 > 0 ? n1 : 0;
        n2_ = n2 > 0 ? n2 : 0;
        datos_.Redim(n1_ * n2_);
    }
    // Changes the first dimension keeping every slot that remains.
    void RedimPreserve(long n1) {
        n1_ = n1 > 0 ? n1 : 0;
        datos_.RedimPreserve(n1_ * n2_);
    }

    long Ubound1() const { return n1_; }
    long Ubound2() const { return n2_; }

    T& operator()(long i, long j) { return datos_(Indice(i, j)); }
    const T& operator()(long i, long j) const { return datos_(Indice(i, j)); }

    bool operator==(const Arreglo2&) const = default;

  private:
    long Indice(long i, long j) const {
        if (i < 1 || i > n1_ || j < 1 || j > n2_) throw ErrorTrevalo::SubindiceFueraDeIntervalo();
        return (i - 1) * n2_ + j;
    }

    long n1_ = 0;
    long n2_ = 0;
    Arreglo<T> datos_;
};

} // namespace trevalo
