// Every exported function against bad input. Driven by the export table and
// the prototypes of the public header: each function runs in a child process
// (so a crash is caught and named) with, in turn, every pointer null, every
// length 0, -1 and INT_MIN, and every record a zeroed block or a block of
// another kind. Each case must return a negative status (or what the
// exceptions file documents), write nothing to the outputs, and not crash.
#include <ffi.h>
#include <fnmatch.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "api_parse.h"

namespace {

using sweep::Kind;
using sweep::Param;
using sweep::Proto;
using sweep::Ret;

constexpr size_t kBufBytes = 1 << 16;
constexpr unsigned char kOutFill = 0xA5;

std::string read_file(const char* path)
{
    std::ifstream in(path);
    std::stringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

std::vector<std::string> read_lines(const char* path)
{
    std::ifstream in(path);
    std::vector<std::string> out;
    for (std::string line; std::getline(in, line);)
        if (!line.empty()) out.push_back(line);
    return out;
}

// One documented departure from "negative status, nothing written".
struct Exception {
    std::string func;   // glob over exported names
    std::string param;  // parameter name, or * for any
    std::string which;  // null, len, record, or *
    std::string expect; // ok: a status >= 0 is right; skip: the case is not meaningful;
                        // written: negative, but this output may be written
};

std::vector<Exception> read_exceptions(const char* path)
{
    std::vector<Exception> out;
    for (const auto& line : read_lines(path)) {
        if (line[0] == '#') continue;
        std::stringstream ss(line);
        Exception e;
        ss >> e.func >> e.param >> e.which >> e.expect;
        if (!e.expect.empty()) out.push_back(e);
    }
    return out;
}

const Exception* find_exception(const std::vector<Exception>& ex, const std::string& func, const std::string& param,
                                const std::string& which, const std::string& expect)
{
    for (const auto& e : ex)
        if (fnmatch(e.func.c_str(), func.c_str(), 0) == 0 && (e.param == "*" || e.param == param) &&
            (e.which == "*" || e.which == which || (e.which == "len" && which.rfind("len", 0) == 0)) &&
            e.expect == expect)
            return &e;
    return nullptr;
}

bool is_length(const Param& p)
{
    if (p.kind != Kind::Int32) return false;
    return p.name == "len" || (p.name.size() > 3 && p.name.compare(p.name.size() - 3, 3, "Len") == 0);
}

ffi_type* cplx_type(ffi_type* part)
{
    // Built once per part type in the child; lives until the child exits.
    auto* t = new ffi_type;
    auto** elems = new ffi_type*[3]{part, part, nullptr};
    t->size = 0;
    t->alignment = 0;
    t->type = FFI_TYPE_STRUCT;
    t->elements = elems;
    return t;
}

ffi_type* ffi_of(Kind k)
{
    switch (k) {
    case Kind::Pointer: return &ffi_type_pointer;
    case Kind::Int32: return &ffi_type_sint32;
    case Kind::UInt32: return &ffi_type_uint32;
    case Kind::Int8: return &ffi_type_sint8;
    case Kind::UInt8: return &ffi_type_uint8;
    case Kind::Int16: return &ffi_type_sint16;
    case Kind::UInt16: return &ffi_type_uint16;
    case Kind::Int64: return &ffi_type_sint64;
    case Kind::UInt64: return &ffi_type_uint64;
    case Kind::Float: return &ffi_type_float;
    case Kind::Double: return &ffi_type_double;
    case Kind::Cplx8s: { static ffi_type* t = cplx_type(&ffi_type_sint8); return t; }
    case Kind::Cplx16s: { static ffi_type* t = cplx_type(&ffi_type_sint16); return t; }
    case Kind::Cplx32s: { static ffi_type* t = cplx_type(&ffi_type_sint32); return t; }
    case Kind::Cplx64s: { static ffi_type* t = cplx_type(&ffi_type_sint64); return t; }
    case Kind::Cplx32f: { static ffi_type* t = cplx_type(&ffi_type_float); return t; }
    case Kind::Cplx64f: { static ffi_type* t = cplx_type(&ffi_type_double); return t; }
    }
    return nullptr;
}

// The arguments of one call: every pointer gets its own 64 KiB block (inputs
// zero, outputs a fill pattern, records zero; pointer arrays point at zeroed
// channel blocks); scalars get small valid values.
struct Call {
    const Proto& proto;
    std::vector<unsigned char*> bufs;
    std::vector<void*> ptrs;
    std::vector<unsigned char> values; // 16 bytes per parameter
    std::vector<void*> argp;
    std::vector<unsigned char*> channels;

    explicit Call(const Proto& p) : proto(p), bufs(p.params.size()), ptrs(p.params.size()), values(16 * p.params.size())
    {
        for (size_t i = 0; i < p.params.size(); ++i) reset(i);
    }
    ~Call()
    {
        for (auto* b : bufs) std::free(b);
        for (auto* b : channels) std::free(b);
    }
    bool is_output(size_t i) const
    {
        const Param& q = proto.params[i];
        return q.kind == Kind::Pointer && !q.isConst && !q.isRecord && q.type.find("**") == std::string::npos;
    }
    void reset(size_t i)
    {
        const Param& q = proto.params[i];
        unsigned char* v = &values[16 * i];
        std::memset(v, 0, 16);
        if (q.kind == Kind::Pointer) {
            if (!bufs[i]) bufs[i] = static_cast<unsigned char*>(std::aligned_alloc(64, kBufBytes));
            std::memset(bufs[i], is_output(i) ? kOutFill : 0, kBufBytes);
            if (q.type.find("**") != std::string::npos) {
                auto** arr = reinterpret_cast<unsigned char**>(bufs[i]);
                for (int c = 0; c < 8; ++c) {
                    channels.push_back(static_cast<unsigned char*>(std::calloc(1, kBufBytes)));
                    arr[c] = channels.back();
                }
            }
            ptrs[i] = bufs[i];
            std::memcpy(v, &ptrs[i], sizeof(void*));
            return;
        }
        const bool scale = q.name.find("scale") != std::string::npos || q.name.find("Scale") != std::string::npos;
        switch (q.kind) {
        case Kind::Int32: { int x = is_length(q) ? 16 : (scale ? 0 : 1); std::memcpy(v, &x, 4); break; }
        case Kind::UInt32: { unsigned x = 1; std::memcpy(v, &x, 4); break; }
        case Kind::Int8: case Kind::UInt8: v[0] = 1; break;
        case Kind::Int16: case Kind::UInt16: { short x = 1; std::memcpy(v, &x, 2); break; }
        case Kind::Int64: case Kind::UInt64: { long long x = 1; std::memcpy(v, &x, 8); break; }
        case Kind::Float: { float x = 1; std::memcpy(v, &x, 4); break; }
        case Kind::Double: { double x = 1; std::memcpy(v, &x, 8); break; }
        case Kind::Cplx8s: v[0] = 1; break;
        case Kind::Cplx16s: { short x = 1; std::memcpy(v, &x, 2); break; }
        case Kind::Cplx32s: { int x = 1; std::memcpy(v, &x, 4); break; }
        case Kind::Cplx64s: { long long x = 1; std::memcpy(v, &x, 8); break; }
        case Kind::Cplx32f: { float x = 1; std::memcpy(v, &x, 4); break; }
        case Kind::Cplx64f: { double x = 1; std::memcpy(v, &x, 8); break; }
        default: break;
        }
    }
    void set_null(size_t i) { std::memset(&values[16 * i], 0, sizeof(void*)); }
    void set_int(size_t i, int x) { std::memcpy(&values[16 * i], &x, 4); }
    void fill_record(size_t i, uint32_t tag)
    {
        std::memset(bufs[i], 0, kBufBytes);
        std::memcpy(bufs[i], &tag, 4);
    }
    bool output_untouched(size_t i) const
    {
        for (size_t k = 0; k < kBufBytes; ++k)
            if (bufs[i][k] != kOutFill) return false;
        return true;
    }
    // Calls the function; returns the status (pointer returns: 0 for null, 1 otherwise).
    long invoke(void* fn)
    {
        const size_t n = proto.params.size();
        std::vector<ffi_type*> types(n);
        argp.resize(n);
        for (size_t i = 0; i < n; ++i) {
            types[i] = ffi_of(proto.params[i].kind);
            argp[i] = &values[16 * i];
        }
        ffi_cif cif;
        ffi_type* rt = proto.ret == Ret::Status ? &ffi_type_sint32
                       : proto.ret == Ret::Pointer ? &ffi_type_pointer
                                                   : &ffi_type_void;
        if (ffi_prep_cif(&cif, FFI_DEFAULT_ABI, unsigned(n), rt, types.data()) != FFI_OK) return LONG_MIN;
        union { ffi_arg a; void* p; } r{};
        ffi_call(&cif, FFI_FN(fn), &r, n ? argp.data() : nullptr);
        if (proto.ret == Ret::Status) return static_cast<int>(r.a);
        if (proto.ret == Ret::Pointer) return r.p ? 1 : 0;
        return 0;
    }
};

// Runs every case of one function, writing "case ..." before each and
// "fail ..." for each broken rule to fd. Returns the number of cases.
int run_cases(const Proto& p, void* fn, const std::vector<Exception>& ex, FILE* out)
{
    int cases = 0;
    auto report_case = [&](const std::string& what) {
        std::fprintf(out, "case %s\n", what.c_str());
        std::fflush(out);
        ++cases;
    };
    auto check = [&](Call& c, long st, const std::string& param, const std::string& which, const std::string& what) {
        if (p.ret == Ret::Void) return;
        if (p.ret == Ret::Pointer) {
            if (st != 0) std::fprintf(out, "fail %s: returned a block\n", what.c_str());
            return;
        }
        const bool okDocumented = find_exception(ex, p.name, param, which, "ok") != nullptr;
        if (st >= 0 && !okDocumented) std::fprintf(out, "fail %s: status %ld, not an error\n", what.c_str(), st);
        if (st < 0)
            for (size_t i = 0; i < p.params.size(); ++i)
                if (c.is_output(i) && c.ptrs[i] && !c.output_untouched(i) &&
                    !find_exception(ex, p.name, p.params[i].name, which, "written"))
                    std::fprintf(out, "fail %s: status %ld but output %s was written\n", what.c_str(), st,
                                 p.params[i].name.c_str());
    };

    for (size_t i = 0; i < p.params.size(); ++i) {
        const Param& q = p.params[i];
        if (q.kind == Kind::Pointer) {
            if (find_exception(ex, p.name, q.name, "null", "skip")) continue;
            const std::string what = p.name + " " + q.name + "=NULL";
            report_case(what);
            Call c(p);
            c.set_null(i);
            c.ptrs[i] = nullptr;
            check(c, c.invoke(fn), q.name, "null", what);
        }
        if (is_length(q)) {
            for (int bad : {0, -1, INT_MIN}) {
                const std::string which = bad == 0 ? "len0" : "lenneg";
                if (find_exception(ex, p.name, q.name, which, "skip")) continue;
                const std::string what = p.name + " " + q.name + "=" + std::to_string(bad);
                report_case(what);
                Call c(p);
                c.set_int(i, bad);
                check(c, c.invoke(fn), q.name, which, what);
            }
        }
        if (q.kind == Kind::Pointer && q.isRecord) {
            if (find_exception(ex, p.name, q.name, "record", "skip")) continue;
            // A transform record gets a filter's tag and every other record a
            // transform's, so the tag is always of another kind.
            const bool transform = q.type.find("FFT") != std::string::npos || q.type.find("DFT") != std::string::npos ||
                                   q.type.find("DCT") != std::string::npos || q.type.find("WT") != std::string::npos ||
                                   q.type.find("Hilbert") != std::string::npos;
            const uint32_t foreign = transform ? 0x31304946u /* "FI01" */ : 1u;
            for (uint32_t tag : {0u, foreign}) {
                const std::string what = p.name + " " + q.name + (tag ? "=record of another kind" : "=zeroed block");
                report_case(what);
                Call c(p);
                c.fill_record(i, tag);
                check(c, c.invoke(fn), q.name, "record", what);
            }
        }
    }
    return cases;
}

TEST(ApiSweep, EveryExportedFunctionAgainstBadInput)
{
    std::vector<std::string> errors;
    const auto protos = sweep::parse_header(read_file(TAVS_HEADER_PATH), errors);
    for (const auto& e : errors) ADD_FAILURE() << "cannot read prototype: " << e;
    const auto names = read_lines(TAVS_EXPORTS_TXT);
    const auto ex = read_exceptions(TAVS_SWEEP_EXCEPTIONS);

    void* lib = dlopen(TAVS_LIBRARY_PATH, RTLD_NOW);
    ASSERT_NE(lib, nullptr) << dlerror();
    int functions = 0, cases = 0;
    for (const auto& name : names) {
        auto it = protos.find(name);
        if (it == protos.end()) {
            ADD_FAILURE() << name << " is exported but has no prototype in tavs.h";
            continue;
        }
        void* fn = dlsym(lib, name.c_str());
        ASSERT_NE(fn, nullptr) << name;
        int pipefd[2];
        ASSERT_EQ(pipe(pipefd), 0);
        std::fflush(nullptr);
        pid_t pid = fork();
        ASSERT_GE(pid, 0);
        if (pid == 0) {
            close(pipefd[0]);
            FILE* out = fdopen(pipefd[1], "w");
            run_cases(it->second, fn, ex, out);
            std::fprintf(out, "done\n");
            std::fclose(out);
            _exit(0);
        }
        close(pipefd[1]);
        FILE* in = fdopen(pipefd[0], "r");
        std::string last, line;
        bool done = false;
        char buf[1024];
        while (std::fgets(buf, sizeof buf, in)) {
            line = buf;
            if (!line.empty() && line.back() == '\n') line.pop_back();
            if (line.rfind("case ", 0) == 0) {
                last = line.substr(5);
                ++cases;
            } else if (line.rfind("fail ", 0) == 0) {
                ADD_FAILURE() << line.substr(5);
            } else if (line == "done") {
                done = true;
            }
        }
        std::fclose(in);
        int wstatus = 0;
        waitpid(pid, &wstatus, 0);
        if (!done || !WIFEXITED(wstatus) || WEXITSTATUS(wstatus) != 0)
            ADD_FAILURE() << name << " crashed (signal " << (WIFSIGNALED(wstatus) ? WTERMSIG(wstatus) : 0)
                          << ", exit " << (WIFEXITED(wstatus) ? WEXITSTATUS(wstatus) : -1) << ") in case: " << last;
        ++functions;
    }
    std::printf("api sweep: %d functions, %d cases\n", functions, cases);
    EXPECT_EQ(functions, int(names.size()));
}

} // namespace
