// The FFT's tables: the static quarter-wave sine tables, the size
// arithmetic of every record, and the builders of the swap list, radix-4
// twiddles, merge tables, column twiddles, real twiddles and Q14 twiddles.
#include "internal/body.h"
#include "internal/fft.h"

#include <cmath>

namespace tavs::fft {

// sin(2 pi k / 1024) for k = 0 .. 256: the sine for k up to 128, the cosine of
// (256 - k) above, rounded once to the element type; exact 0 at k = 0, exact 1 at 256.
alignas(64) const double kQuarterSine1024_64f[257] = {
    0.0, 0.006135884649154475, 0.012271538285719925, 0.01840672990580482,
    0.024541228522912288, 0.030674803176636626, 0.03680722294135883, 0.04293825693494082,
    0.049067674327418015, 0.055195244349689934, 0.06132073630220858, 0.06744391956366405,
    0.07356456359966743, 0.07968243797143013, 0.0857973123444399, 0.09190895649713272,
    0.0980171403295606, 0.10412163387205459, 0.11022220729388306, 0.11631863091190475,
    0.1224106751992162, 0.12849811079379317, 0.13458070850712617, 0.1406582393328492,
    0.14673047445536175, 0.15279718525844344, 0.15885814333386145, 0.16491312048996992,
    0.17096188876030122, 0.17700422041214875, 0.18303988795514095, 0.1890686641498062,
    0.19509032201612825, 0.2011046348420919, 0.20711137619221856, 0.21311031991609136,
    0.2191012401568698, 0.22508391135979283, 0.2310581082806711, 0.2370236059943672,
    0.24298017990326387, 0.24892760574572015, 0.25486565960451457, 0.2607941179152755,
    0.26671275747489837, 0.272621355449949, 0.27851968938505306, 0.2844075372112719,
    0.29028467725446233, 0.2961508882436238, 0.3020059493192281, 0.30784964004153487,
    0.3136817403988915, 0.3195020308160157, 0.3253102921622629, 0.33110630575987643,
    0.33688985339222005, 0.3426607173119944, 0.34841868024943456, 0.35416352542049034,
    0.3598950365349881, 0.36561299780477385, 0.37131719395183754, 0.37700741021641826,
    0.3826834323650898, 0.38834504669882625, 0.3939920400610481, 0.3996241998456468,
    0.40524131400498986, 0.4108431710579039, 0.41642956009763715, 0.4220002707997997,
    0.4275550934302821, 0.43309381885315196, 0.43861623853852766, 0.4441221445704292,
    0.44961132965460654, 0.45508358712634384, 0.46053871095824, 0.4659764957679662,
    0.47139673682599764, 0.4767992300633221, 0.4821837720791227, 0.487550160148436,
    0.49289819222978404, 0.49822766697278187, 0.5035383837257176, 0.508830142543107,
    0.5141027441932217, 0.5193559901655896, 0.524589682678469, 0.5298036246862946,
    0.5349976198870972, 0.5401714727298929, 0.5453249884220465, 0.5504579729366048,
    0.5555702330196022, 0.560661576197336, 0.5657318107836131, 0.5707807458869673,
    0.5758081914178453, 0.5808139580957645, 0.5857978574564389, 0.5907597018588742,
    0.5956993044924334, 0.600616479383869, 0.6055110414043255, 0.6103828062763095,
    0.6152315905806268, 0.6200572117632891, 0.6248594881423863, 0.629638238914927,
    0.6343932841636455, 0.6391244448637757, 0.6438315428897914, 0.6485144010221124,
    0.6531728429537768, 0.6578066932970786, 0.6624157775901718, 0.6669999223036375,
    0.6715589548470183, 0.6760927035753159, 0.680600997795453, 0.6850836677727004,
    0.6895405447370668, 0.693971460889654, 0.6983762494089729, 0.7027547444572253,
    0.7071067811865475, 0.7114321957452164, 0.7157308252838186, 0.7200025079613817,
    0.724247082951467, 0.7284643904482252, 0.7326542716724128, 0.7368165688773699,
    0.7409511253549591, 0.7450577854414661, 0.7491363945234594, 0.7531867990436125,
    0.7572088465064846, 0.7612023854842618, 0.765167265622459, 0.7691033376455797,
    0.773010453362737, 0.7768884656732324, 0.7807372285720945, 0.7845565971555752,
    0.7883464276266063, 0.7921065773002124, 0.7958369046088836, 0.799537269107905,
    0.8032075314806449, 0.8068475535437993, 0.8104571982525948, 0.8140363297059484,
    0.8175848131515837, 0.8211025149911046, 0.8245893027850253, 0.8280450452577558,
    0.8314696123025452, 0.83486287498638, 0.8382247055548381, 0.8415549774368984,
    0.8448535652497071, 0.8481203448032972, 0.8513551931052652, 0.8545579883654005,
    0.8577286100002721, 0.8608669386377673, 0.8639728561215868, 0.8670462455156926,
    0.8700869911087115, 0.8730949784182901, 0.8760700941954066, 0.8790122264286335,
    0.881921264348355, 0.8847970984309378, 0.8876396204028539, 0.8904487232447579,
    0.8932243011955153, 0.8959662497561852, 0.8986744656939538, 0.901348847046022,
    0.9039892931234433, 0.9065957045149153, 0.9091679830905224, 0.9117060320054299,
    0.9142097557035307, 0.9166790599210427, 0.9191138516900578, 0.921514039342042,
    0.9238795325112867, 0.9262102421383114, 0.9285060804732156, 0.9307669610789837,
    0.932992798834739, 0.9351835099389476, 0.937339011912575, 0.9394592236021899,
    0.9415440651830208, 0.9435934581619604, 0.9456073253805213, 0.9475855910177411,
    0.9495281805930367, 0.9514350209690083, 0.9533060403541939, 0.9551411683057708,
    0.9569403357322088, 0.9587034748958716, 0.9604305194155658, 0.9621214042690416,
    0.9637760657954398, 0.9653944416976894, 0.9669764710448521, 0.9685220942744174,
    0.970031253194544, 0.9715038909862518, 0.9729399522055602, 0.9743393827855759,
    0.9757021300385286, 0.9770281426577544, 0.9783173707196277, 0.9795697656854405,
    0.9807852804032304, 0.9819638691095552, 0.9831054874312163, 0.984210092386929,
    0.9852776423889412, 0.9863080972445987, 0.9873014181578584, 0.9882575677307495,
    0.989176509964781, 0.9900582102622971, 0.99090263542778, 0.9917097536690995,
    0.99247953459871, 0.9932119492347945, 0.9939069700023561, 0.9945645707342554,
    0.9951847266721969, 0.9957674144676598, 0.996312612182778, 0.9968202992911657,
    0.9972904566786902, 0.9977230666441916, 0.9981181129001492, 0.9984755805732948,
    0.9987954562051724, 0.9990777277526454, 0.9993223845883495, 0.9995294175010931,
    0.9996988186962042, 0.9998305817958234, 0.9999247018391445, 0.9999811752826011,
    1.0,
};

alignas(64) const float kQuarterSine1024_32f[257] = {
    0.0f, 0.00613588467f, 0.0122715384f, 0.0184067301f, 0.024541229f, 0.030674804f,
    0.0368072242f, 0.0429382585f, 0.0490676761f, 0.0551952459f, 0.061320737f, 0.0674439222f,
    0.0735645667f, 0.0796824396f, 0.0857973099f, 0.0919089541f, 0.0980171412f, 0.104121633f,
    0.110222206f, 0.116318628f, 0.122410677f, 0.128498107f, 0.134580702f, 0.140658244f,
    0.146730468f, 0.152797192f, 0.15885815f, 0.164913118f, 0.170961887f, 0.177004218f,
    0.183039889f, 0.18906866f, 0.195090324f, 0.201104641f, 0.207111374f, 0.213110313f,
    0.219101235f, 0.225083917f, 0.231058106f, 0.237023607f, 0.242980182f, 0.248927608f,
    0.254865646f, 0.260794103f, 0.266712755f, 0.272621363f, 0.27851969f, 0.284407526f,
    0.290284663f, 0.296150893f, 0.302005947f, 0.307849646f, 0.313681751f, 0.319502026f,
    0.32531029f, 0.331106305f, 0.336889863f, 0.342660725f, 0.348418683f, 0.354163527f,
    0.359895051f, 0.365612984f, 0.371317208f, 0.377007425f, 0.382683426f, 0.388345033f,
    0.393992037f, 0.399624199f, 0.405241311f, 0.410843164f, 0.416429549f, 0.422000259f,
    0.427555084f, 0.433093816f, 0.438616246f, 0.444122136f, 0.449611336f, 0.455083579f,
    0.460538715f, 0.465976506f, 0.471396744f, 0.47679922f, 0.482183784f, 0.487550169f,
    0.492898196f, 0.498227656f, 0.50353837f, 0.50883013f, 0.514102757f, 0.519356012f,
    0.524589658f, 0.529803634f, 0.534997642f, 0.540171444f, 0.545324981f, 0.550457954f,
    0.555570245f, 0.560661554f, 0.565731823f, 0.570780754f, 0.575808167f, 0.580813944f,
    0.585797846f, 0.590759695f, 0.59569931f, 0.600616455f, 0.605511069f, 0.610382795f,
    0.615231574f, 0.620057225f, 0.624859512f, 0.629638255f, 0.634393275f, 0.639124453f,
    0.643831551f, 0.64851439f, 0.653172851f, 0.657806695f, 0.662415802f, 0.666999936f,
    0.671558976f, 0.676092684f, 0.680601001f, 0.685083687f, 0.689540565f, 0.693971455f,
    0.698376238f, 0.702754736f, 0.707106769f, 0.711432219f, 0.715730846f, 0.720002532f,
    0.724247098f, 0.728464365f, 0.732654274f, 0.736816585f, 0.740951121f, 0.745057762f,
    0.749136388f, 0.753186822f, 0.757208824f, 0.761202395f, 0.765167236f, 0.769103348f,
    0.773010433f, 0.77688849f, 0.780737221f, 0.784556568f, 0.78834641f, 0.792106569f,
    0.795836926f, 0.799537241f, 0.803207517f, 0.806847572f, 0.81045717f, 0.81403631f,
    0.817584813f, 0.8211025f, 0.824589312f, 0.82804507f, 0.831469595f, 0.834862888f,
    0.838224709f, 0.841554999f, 0.84485358f, 0.848120332f, 0.851355195f, 0.854557991f,
    0.857728601f, 0.860866964f, 0.863972843f, 0.867046237f, 0.870086968f, 0.873094976f,
    0.876070082f, 0.879012227f, 0.881921291f, 0.884797096f, 0.887639642f, 0.890448749f,
    0.893224299f, 0.895966232f, 0.898674488f, 0.901348829f, 0.903989315f, 0.906595707f,
    0.909168005f, 0.91170603f, 0.914209783f, 0.916679084f, 0.919113874f, 0.921514034f,
    0.923879504f, 0.926210225f, 0.928506076f, 0.93076694f, 0.932992816f, 0.935183525f,
    0.937339008f, 0.939459205f, 0.941544056f, 0.943593442f, 0.945607305f, 0.947585583f,
    0.949528158f, 0.95143503f, 0.953306019f, 0.955141187f, 0.956940353f, 0.958703458f,
    0.960430503f, 0.962121427f, 0.963776052f, 0.965394437f, 0.966976464f, 0.968522072f,
    0.970031261f, 0.971503913f, 0.972939968f, 0.974339366f, 0.975702107f, 0.977028131f,
    0.97831738f, 0.979569793f, 0.980785251f, 0.981963873f, 0.983105481f, 0.984210074f,
    0.985277653f, 0.986308098f, 0.987301409f, 0.988257587f, 0.989176512f, 0.990058184f,
    0.990902662f, 0.991709769f, 0.992479563f, 0.993211925f, 0.993906975f, 0.994564593f,
    0.99518472f, 0.995767415f, 0.996312618f, 0.996820271f, 0.997290432f, 0.997723043f,
    0.998118103f, 0.998475552f, 0.99879545f, 0.999077737f, 0.999322355f, 0.999529421f,
    0.999698818f, 0.999830604f, 0.999924719f, 0.999981165f, 1.0f,
};

// round(16384 sin(2 pi k / 1024)) for k = 0 .. 255 (Q14); k = 256 is 16384 by rule.
alignas(64) const Tav16s kQuarterSineQ14[256] = {
    0, 101, 201, 302, 402, 503, 603, 704, 804, 904, 1005, 1105,
    1205, 1306, 1406, 1506, 1606, 1706, 1806, 1906, 2006, 2105, 2205, 2305,
    2404, 2503, 2603, 2702, 2801, 2900, 2999, 3098, 3196, 3295, 3393, 3492,
    3590, 3688, 3786, 3883, 3981, 4078, 4176, 4273, 4370, 4467, 4563, 4660,
    4756, 4852, 4948, 5044, 5139, 5235, 5330, 5425, 5520, 5614, 5708, 5803,
    5897, 5990, 6084, 6177, 6270, 6363, 6455, 6547, 6639, 6731, 6823, 6914,
    7005, 7096, 7186, 7276, 7366, 7456, 7545, 7635, 7723, 7812, 7900, 7988,
    8076, 8163, 8250, 8337, 8423, 8509, 8595, 8680, 8765, 8850, 8935, 9019,
    9102, 9186, 9269, 9352, 9434, 9516, 9598, 9679, 9760, 9841, 9921, 10001,
    10080, 10159, 10238, 10316, 10394, 10471, 10549, 10625, 10702, 10778, 10853, 10928,
    11003, 11077, 11151, 11224, 11297, 11370, 11442, 11514, 11585, 11656, 11727, 11797,
    11866, 11935, 12004, 12072, 12140, 12207, 12274, 12340, 12406, 12472, 12537, 12601,
    12665, 12729, 12792, 12854, 12916, 12978, 13039, 13100, 13160, 13219, 13279, 13337,
    13395, 13453, 13510, 13567, 13623, 13678, 13733, 13788, 13842, 13896, 13949, 14001,
    14053, 14104, 14155, 14206, 14256, 14305, 14354, 14402, 14449, 14497, 14543, 14589,
    14635, 14680, 14724, 14768, 14811, 14854, 14896, 14937, 14978, 15019, 15059, 15098,
    15137, 15175, 15213, 15250, 15286, 15322, 15357, 15392, 15426, 15460, 15493, 15525,
    15557, 15588, 15619, 15649, 15679, 15707, 15736, 15763, 15791, 15817, 15843, 15868,
    15893, 15917, 15941, 15964, 15986, 16008, 16029, 16049, 16069, 16088, 16107, 16125,
    16143, 16160, 16176, 16192, 16207, 16221, 16235, 16248, 16261, 16273, 16284, 16295,
    16305, 16315, 16324, 16332, 16340, 16347, 16353, 16359, 16364, 16369, 16373, 16376,
    16379, 16381, 16383, 16384,
};

// ---- size arithmetic ------------------------------------------------------

namespace {
constexpr int8_t kFirstFactor32[17] = {0, 0, 5, 6, 7, 8, 8, 8, 10, 10, 10, 10, 8, 8, 10, 10, 10};
constexpr int8_t kFirstFactor64[17] = {0, 4, 5, 6, 7, 7, 8, 9, 9, 9, 8, 8, 9, 9, 9, 9, 9};

constexpr int largest_first_factor()
{
    int f = 0;
    for (int i = 0; i < 17; ++i) {
        if (kFirstFactor32[i] > f) f = kFirstFactor32[i];
        if (kFirstFactor64[i] > f) f = kFirstFactor64[i];
    }
    return f;
}

struct Core {
    int64_t S, I, W;
};

// Core(m) for m > 10: record, init and work bytes of the large path at m.
template <class S> Core core(int m)
{
    using D = Dims<S>;
    const int F = first_factor_bits<S>(m);
    if (F == 0) return {D::C(int64_t(1) << m), 0, 0};
    const int M = m - F;
    const int64_t R = int64_t(1) << F;
    Core c = M > 10 ? core<S>(M) : Core{D::B(int64_t(1) << M), 0, 0};
    c.S += D::B(R) + D::Elem * (int64_t(1) << m);
    c.I += sizeA(R) + D::Col * R;
    if (D::Col * R > c.W) c.W = D::Col * R;
    return c;
}
} // namespace

template <class S> int first_factor_bits(int order)
{
    if (order < 11 || order > 27) return 0;
    return sizeof(S) == 4 ? kFirstFactor32[order - 11] : kFirstFactor64[order - 11];
}
template int first_factor_bits<float>(int);
template int first_factor_bits<double>(int);

template <class S> Sizes complex_sizes(int order)
{
    using D = Dims<S>;
    const int64_t N = int64_t(1) << order;
    if (order <= 5) return {208, 0, 0};
    if (order <= 10) return {D::B(N) + sizeA(N) + 256, 0, 0};
    const Core c = core<S>(order);
    const int64_t sine = sizeof(S) == 4 ? sizeA(N) : ((2 * N + 71) & ~int64_t(63));
    return {c.S + sizeA(N) + 256, sine + c.I + 64, c.W > 0 ? c.W + 64 : 0};
}
template Sizes complex_sizes<float>(int);
template Sizes complex_sizes<double>(int);

// Bytes of one real twiddle table: N/4 entries, or the two-level form.
template <class S> int64_t real_table_bytes(int order)
{
    using D = Dims<S>;
    const int64_t N = int64_t(1) << order;
    if (order >= D::kTwoLevelReal) {
        if (sizeof(S) == 4) return (8 * (int64_t(1) << (order - 12)) + 8255) & ~int64_t(63);
        return (16 * (int64_t(1) << (order - 11)) + 8255) & ~int64_t(63);
    }
    return (N / 4 * D::Elem + 63) & ~int64_t(63);
}
template int64_t real_table_bytes<float>(int);
template int64_t real_table_bytes<double>(int);

template <class S> Sizes real_sizes(int order)
{
    using D = Dims<S>;
    const int64_t N = int64_t(1) << order;
    if (order <= 5) return {208, 0, 0};
    const int64_t T = real_table_bytes<S>(order);
    if (order == 6) return {2 * T + 256, 0, 0};
    const int m = order - 1;
    const int64_t M = int64_t(1) << m;
    if (order <= 11) return {D::B(M) + sizeA(M) + 2 * T + 256, order == 11 ? D::D(N) + 64 : 0, 0};
    const Core c = core<S>(m);
    return {c.S + sizeA(M) + 2 * T + 256, D::D(N) + c.I + 64, c.W > 0 ? c.W + 64 : 0};
}
template Sizes real_sizes<float>(int);
template Sizes real_sizes<double>(int);

// ---- the quarter-wave sine table ----------------------------------------

namespace {
constexpr double kTwoPi = 6.283185307179586476925286766559;

// (cos, -sin) of W^e for e in [0, circle) from the sine table s of a
// circle whose quarter is Q, by quadrant folding; a quadrant boundary goes
// with the lower quadrant.
template <class S> inline void fold_quarter(const S* s, int64_t Q, int64_t e, S& re, S& im)
{
    S c, sn;
    if (e <= Q) {
        c = s[Q - e];
        sn = s[e];
    } else if (e <= 2 * Q) {
        c = -s[e - Q];
        sn = s[2 * Q - e];
    } else if (e <= 3 * Q) {
        c = -s[3 * Q - e];
        sn = -s[e - 2 * Q];
    } else {
        c = s[e - 3 * Q];
        sn = -s[4 * Q - e];
    }
    re = c;
    im = -sn;
}
} // namespace

template <class S> void QuarterSine<S>::twiddle(int64_t e, S& re, S& im) const
{
    fold_quarter(this->s, circle >> 2, e & (circle - 1), re, im);
}
template struct QuarterSine<float>;
template struct QuarterSine<double>;

template <class S> QuarterSine<S> quarter_sine(int order, S* scratch)
{
    if (order <= 10) {
        if constexpr (sizeof(S) == 4) return {kQuarterSine1024_32f, 1024};
        else return {kQuarterSine1024_64f, 1024};
    }
    const int64_t N = int64_t(1) << order;
    const int64_t Q = N / 4;
    for (int64_t k = 0; k < Q; ++k) {
        const double v = k <= N / 8 ? std::sin(kTwoPi * double(k) / double(N))
                                    : std::cos(kTwoPi * double(Q - k) / double(N));
        scratch[k] = static_cast<S>(v);
    }
    scratch[Q] = S(1);
    return {scratch, N};
}
template QuarterSine<float> quarter_sine<float>(int, float*);
template QuarterSine<double> quarter_sine<double>(int, double*);

// ---- builders -------------------------------------------------------------

namespace {
// The widest column FFT of any two-factor level, and the window of the
// circle (in exponent steps of the level) that the column builder fills at
// a time: 2^14 steps keep both stretches of the sine table in the L2 cache.
constexpr int64_t kMaxColumns = int64_t(1) << largest_first_factor();
constexpr int64_t kColumnWindow = int64_t(1) << 14;

inline uint32_t bit_reverse(uint32_t v, int bits)
{
    uint32_t r = 0;
    for (int b = 0; b < bits; ++b) {
        r = (r << 1) | (v & 1);
        v >>= 1;
    }
    return r;
}
} // namespace

// Pairs (4i, 4j) with i < j = reverse(i) from the front, ended by 0; the
// self-reversed 4i from the back downward, with a 0 at slot L/4. The
// reversed index is carried along: adding 1 to i adds 1 to j from its top
// bit downward.
void build_swap_list(int32_t* list, int m)
{
    if (m < 2) return;
    const int bits = m - 2;
    const int32_t quarter = int32_t(1) << bits;
    int32_t front = 0, back = quarter;
    list[back--] = 0;
    uint32_t j = 0;
    for (int32_t i = 1; i < quarter; ++i) {
        uint32_t bit = uint32_t(quarter) >> 1;
        while (j & bit) {
            j ^= bit;
            bit >>= 1;
        }
        j |= bit;
        if (uint32_t(i) < j) {
            list[front++] = 4 * i;
            list[front++] = int32_t(4 * j);
        } else if (uint32_t(i) == j) {
            list[back--] = 4 * i;
        }
    }
    list[front] = 0;
}

template <class S> void build_radix_four(S* t, int64_t L, const QuarterSine<S>& qs)
{
    const int64_t stride = qs.circle / L;
    for (int64_t k = 0; k <= L / 4; ++k)
        for (int64_t j = 1; j <= 3; ++j) qs.twiddle(j * k * stride, t[6 * k + 2 * (j - 1)], t[6 * k + 2 * (j - 1) + 1]);
}
template void build_radix_four<float>(float*, int64_t, const QuarterSine<float>&);
template void build_radix_four<double>(double*, int64_t, const QuarterSine<double>&);

template <class S> void build_merge(S* t, int64_t L, const QuarterSine<S>& qs)
{
    const int64_t stride = qs.circle / L;
    for (int64_t k = 0; k < L / 4; ++k) qs.twiddle(k * stride, t[2 * k], t[2 * k + 1]);
}
template void build_merge<float>(float*, int64_t, const QuarterSine<float>&);
template void build_merge<double>(double*, int64_t, const QuarterSine<double>&);

// Groups of four columns c .. c+3; in each, for the rows r in order, the
// four values W_N^(c * rev(r)) side by side (N = R * M).
//
// Row r's exponents c * rev(r) grow with c, so the table is filled one
// window of the circle at a time: in each window every row writes its next
// columns whose exponents fall inside it. The sine table is then read in two
// short stretches per window (the exponent and its quarter complement)
// instead of at a random place for every entry, which at the largest orders
// (a 1 GB table from a 128 MB sine table) is what the build time was made
// of. Each entry is the same lookup as in any other order.
template <class S> void build_columns(S* t, int64_t R, int64_t M, const QuarterSine<S>& qs)
{
    int bits = 0;
    while ((int64_t(1) << bits) < R) ++bits;
    const int64_t stride = qs.circle / (R * M);
    const int64_t Q = qs.circle >> 2;
    int64_t step[kMaxColumns]; // rev(r) * stride: row r's exponent step per column
    int64_t next[kMaxColumns]; // the first column row r has not written yet
    for (int64_t r = 0; r < R; ++r) {
        step[r] = int64_t(bit_reverse(uint32_t(r), bits)) * stride;
        next[r] = 0;
    }
    // Every exponent is below (M - 1) (R - 1) stride < circle: no reduction.
    const int64_t window = kColumnWindow * stride;
    const int64_t rowGap = 8 * R - 6; // from column 4g+3 to column 4g+4 of a row
    for (int64_t end = window;; end += window) {
        for (int64_t r = 0; r < R; ++r) {
            int64_t c = next[r];
            if (c >= M) continue;
            const int64_t st = step[r];
            int64_t e = c * st;
            S* p = t + 2 * ((c >> 2) * 4 * R + 4 * r + (c & 3));
            for (; c < M && e < end; ++c, e += st) {
                fold_quarter(qs.s, Q, e, p[0], p[1]);
                p += (c & 3) == 3 ? rowGap : 2;
            }
            next[r] = c;
        }
        if (end >= qs.circle) break;
    }
}
template void build_columns<float>(float*, int64_t, int64_t, const QuarterSine<float>&);
template void build_columns<double>(double*, int64_t, int64_t, const QuarterSine<double>&);

// Small form: fwd (0.5 cos t, 0.5 - 0.5 sin t), inv (cos t, -sin t) for
// k < N/4. Two-level form: both (cos t, -sin t), 1024 (512) inner entries
// of step 1, then the outer entries of step 1024 (512).
template <class S> void build_real_tables(S* fwd, S* inv, int order, const QuarterSine<S>& qs)
{
    using D = Dims<S>;
    const int64_t N = int64_t(1) << order;
    const int64_t stride = qs.circle / N;
    if (order >= D::kTwoLevelReal) {
        const int64_t blk = D::kRealBlock;
        const int64_t outer = (N / 4 + blk - 1) / blk;
        for (int64_t k = 0; k < blk; ++k) qs.twiddle(k * stride, fwd[2 * k], fwd[2 * k + 1]);
        for (int64_t j = 0; j < outer; ++j)
            qs.twiddle(j * blk * stride, fwd[2 * (blk + j)], fwd[2 * (blk + j) + 1]);
        for (int64_t i = 0; i < 2 * (blk + outer); ++i) inv[i] = fwd[i];
        return;
    }
    for (int64_t k = 0; k < N / 4; ++k) {
        S c, ms;
        qs.twiddle(k * stride, c, ms);
        fwd[2 * k] = S(0.5) * c;
        fwd[2 * k + 1] = static_cast<S>(0.5 + 0.5 * double(ms)); // 0.5 - 0.5 sin t, rounded once
        inv[2 * k] = c;
        inv[2 * k + 1] = ms;
    }
}
template void build_real_tables<float>(float*, float*, int, const QuarterSine<float>&);
template void build_real_tables<double>(double*, double*, int, const QuarterSine<double>&);

// Entries k < 2^m of (c, s, -s, c) in Q14 with c, s of 2 pi k / 2^m.
void build_q14_twiddles(Tav16s* t, int m)
{
    const int64_t L = int64_t(1) << m;
    const int64_t stride = 1024 / L;
    auto qs = [](int64_t k) -> int32_t { return k == 256 ? 16384 : kQuarterSineQ14[k]; };
    for (int64_t k = 0; k < L; ++k) {
        const int64_t e = k * stride;
        int32_t c, s;
        if (e <= 256) {
            c = qs(256 - e);
            s = qs(e);
        } else if (e <= 512) {
            c = -qs(e - 256);
            s = qs(512 - e);
        } else if (e <= 768) {
            c = -qs(768 - e);
            s = -qs(e - 512);
        } else {
            c = qs(e - 768);
            s = -qs(1024 - e);
        }
        t[4 * k] = Tav16s(c);
        t[4 * k + 1] = Tav16s(s);
        t[4 * k + 2] = Tav16s(-s);
        t[4 * k + 3] = Tav16s(c);
    }
}

} // namespace tavs::fft
