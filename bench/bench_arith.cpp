// Element-wise arithmetic: tavs against a plain loop and VOLK, on the same
// 64-byte aligned buffers.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdint>
#include <type_traits>

#include "bench_util.h"
#include "tavs.h"

#ifdef TAVS_HAVE_VOLK
#include <volk/volk.h>
#endif

namespace {

template <class T> struct Buffers {
    T *a, *b, *d;
    explicit Buffers(int n)
    {
        a = static_cast<T*>(static_cast<void*>(tavsMalloc_8u(n * int(sizeof(T)))));
        b = static_cast<T*>(static_cast<void*>(tavsMalloc_8u(n * int(sizeof(T)))));
        d = static_cast<T*>(static_cast<void*>(tavsMalloc_8u(n * int(sizeof(T)))));
        // Normal floats in [-1, 1) (no denormals to slow any side down), or
        // random 16-bit integers.
        using P = std::conditional_t<sizeof(T) == 2, Tav16s, Tav32f>;
        auto* pa = reinterpret_cast<P*>(a);
        auto* pb = reinterpret_cast<P*>(b);
        uint32_t x = 12345;
        for (size_t i = 0; i < size_t(n) * sizeof(T) / sizeof(P); ++i) {
            bench::lcg_next(x);
            if constexpr (sizeof(P) == 2) {
                pa[i] = P(x >> 16);
                pb[i] = P(x);
            } else {
                pa[i] = P(int32_t(x) >> 8) * 0x1p-23f + 0.5f;
                pb[i] = P(int32_t(x << 8) >> 8) * 0x1p-23f - 0.25f;
            }
        }
    }
    ~Buffers()
    {
        tavsFree(a);
        tavsFree(b);
        tavsFree(d);
    }
};

// Times body on the buffers, whose destination the clobber keeps.
template <class F> void run(benchmark::State& state, F body) { bench::timed(state, nullptr, state.range(0), body); }

// ---- Add_32f ------------------------------------------------------------------------
void bm_add_32f_tavs(benchmark::State& st)
{
    const int n = int(st.range(0));
    Buffers<Tav32f> m(n);
    run(st, [&] { tavsAdd_32f(m.a, m.b, m.d, n); });
}
void bm_add_32f_loop(benchmark::State& st)
{
    const int n = int(st.range(0));
    Buffers<Tav32f> m(n);
    run(st, [&] {
        for (int i = 0; i < n; ++i) m.d[i] = m.a[i] + m.b[i];
    });
}

// ---- Mul_32fc -------------------------------------------------------------------------
void bm_mul_32fc_tavs(benchmark::State& st)
{
    const int n = int(st.range(0));
    Buffers<Tav32fc> m(n);
    run(st, [&] { tavsMul_32fc(m.a, m.b, m.d, n); });
}
void bm_mul_32fc_loop(benchmark::State& st)
{
    const int n = int(st.range(0));
    Buffers<Tav32fc> m(n);
    run(st, [&] {
        for (int i = 0; i < n; ++i) {
            const Tav32fc x = m.a[i], y = m.b[i];
            m.d[i].re = x.re * y.re - x.im * y.im;
            m.d[i].im = x.im * y.re + x.re * y.im;
        }
    });
}

// ---- Add_16s_Sfs (scale factor 1) --------------------------------------------------
void bm_add_16s_sfs_tavs(benchmark::State& st)
{
    const int n = int(st.range(0));
    Buffers<Tav16s> m(n);
    run(st, [&] { tavsAdd_16s_Sfs(m.a, m.b, m.d, n, 1); });
}
void bm_add_16s_sfs_loop(benchmark::State& st)
{
    const int n = int(st.range(0));
    Buffers<Tav16s> m(n);
    run(st, [&] {
        for (int i = 0; i < n; ++i) {
            const int e = m.a[i] + m.b[i];
            const int r = (e + ((e >> 1) & 1)) >> 1;
            m.d[i] = Tav16s(std::clamp(r, -32768, 32767));
        }
    });
}

#ifdef TAVS_HAVE_VOLK
void bm_add_32f_volk(benchmark::State& st)
{
    const int n = int(st.range(0));
    Buffers<Tav32f> m(n);
    run(st, [&] { volk_32f_x2_add_32f(m.d, m.a, m.b, unsigned(n)); });
}
void bm_mul_32fc_volk(benchmark::State& st)
{
    const int n = int(st.range(0));
    Buffers<Tav32fc> m(n);
    run(st, [&] {
        volk_32fc_x2_multiply_32fc(reinterpret_cast<lv_32fc_t*>(m.d), reinterpret_cast<const lv_32fc_t*>(m.a),
                                   reinterpret_cast<const lv_32fc_t*>(m.b), unsigned(n));
    });
}
#endif

} // namespace

BENCHMARK(bm_add_32f_tavs)->Name("Add_32f/tavs")->Arg(4096)->Arg(1048576);
BENCHMARK(bm_add_32f_loop)->Name("Add_32f/loop")->Arg(4096)->Arg(1048576);
BENCHMARK(bm_mul_32fc_tavs)->Name("Mul_32fc/tavs")->Arg(4096)->Arg(1048576);
BENCHMARK(bm_mul_32fc_loop)->Name("Mul_32fc/loop")->Arg(4096)->Arg(1048576);
BENCHMARK(bm_add_16s_sfs_tavs)->Name("Add_16s_Sfs/tavs")->Arg(4096)->Arg(1048576);
BENCHMARK(bm_add_16s_sfs_loop)->Name("Add_16s_Sfs/loop")->Arg(4096)->Arg(1048576);
#ifdef TAVS_HAVE_VOLK
BENCHMARK(bm_add_32f_volk)->Name("Add_32f/volk")->Arg(4096)->Arg(1048576);
BENCHMARK(bm_mul_32fc_volk)->Name("Mul_32fc/volk")->Arg(4096)->Arg(1048576);
#endif
