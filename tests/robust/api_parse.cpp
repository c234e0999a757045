#include "api_parse.h"

#include <cctype>
#include <sstream>

namespace sweep {

namespace {

std::string strip_comments(const std::string& s)
{
    std::string out;
    for (size_t i = 0; i < s.size();) {
        if (s.compare(i, 2, "/*") == 0) {
            size_t e = s.find("*/", i + 2);
            i = e == std::string::npos ? s.size() : e + 2;
            out += ' ';
        } else if (s.compare(i, 2, "//") == 0) {
            size_t e = s.find('\n', i);
            i = e == std::string::npos ? s.size() : e;
        } else if (s[i] == '#') { // preprocessor lines
            size_t e = s.find('\n', i);
            i = e == std::string::npos ? s.size() : e;
        } else {
            out += s[i++];
        }
    }
    return out;
}

std::string trim(const std::string& s)
{
    size_t b = s.find_first_not_of(" \t\r\n"), e = s.find_last_not_of(" \t\r\n");
    return b == std::string::npos ? "" : s.substr(b, e - b + 1);
}

std::string squeeze(const std::string& s)
{
    std::string out;
    bool space = false;
    for (char c : s) {
        if (std::isspace(static_cast<unsigned char>(c))) {
            space = true;
            continue;
        }
        if (space && !out.empty()) out += ' ';
        space = false;
        out += c;
    }
    return out;
}

bool value_kind(const std::string& t, Kind& k)
{
    static const std::map<std::string, Kind> kinds = {
        {"int", Kind::Int32},       {"Status", Kind::Int32},    {"Tav32s", Kind::Int32},
        {"unsigned", Kind::UInt32}, {"unsigned int", Kind::UInt32}, {"Tav32u", Kind::UInt32},
        {"Tav8s", Kind::Int8},      {"Tav8u", Kind::UInt8},     {"Tav16s", Kind::Int16},
        {"Tav16u", Kind::UInt16},   {"Tav64s", Kind::Int64},    {"long long", Kind::Int64},
        {"Tav64u", Kind::UInt64},   {"Tav32f", Kind::Float},    {"float", Kind::Float},
        {"Tav64f", Kind::Double},   {"double", Kind::Double},   {"Tav8sc", Kind::Cplx8s},
        {"Tav16sc", Kind::Cplx16s}, {"Tav32sc", Kind::Cplx32s}, {"Tav64sc", Kind::Cplx64s},
        {"Tav32fc", Kind::Cplx32f}, {"Tav64fc", Kind::Cplx64f}, {"Tav16f", Kind::Int16},
    };
    auto it = kinds.find(t);
    if (it == kinds.end()) return false;
    k = it->second;
    return true;
}

bool is_record_type(const std::string& base)
{
    return base.find("Spec") != std::string::npos || base.find("State") != std::string::npos;
}

} // namespace

std::map<std::string, Proto> parse_header(const std::string& text, std::vector<std::string>& errors)
{
    std::map<std::string, Proto> out;
    std::string body = strip_comments(text);
    std::stringstream ss(body);
    std::string decl;
    while (std::getline(ss, decl, ';')) {
        decl = squeeze(decl);
        size_t open = decl.find('('), close = decl.rfind(')');
        if (open == std::string::npos || close == std::string::npos || close < open) continue;
        std::string head = trim(decl.substr(0, open));
        // The name is the last identifier of the head.
        size_t nameStart = head.find_last_of(" *");
        std::string name = head.substr(nameStart == std::string::npos ? 0 : nameStart + 1);
        if (name.rfind("tavs", 0) != 0) continue;
        // Drop anything before the return type (extern "C" {, typedef blocks...).
        std::string ret = trim(head.substr(0, nameStart == std::string::npos ? 0 : nameStart + 1));
        size_t brace = ret.find_last_of("{}");
        if (brace != std::string::npos) ret = trim(ret.substr(brace + 1));
        Proto p;
        p.name = name;
        if (ret.find('*') != std::string::npos) p.ret = Ret::Pointer;
        else if (ret == "void") p.ret = Ret::Void;
        else if (ret == "Status") p.ret = Ret::Status;
        else {
            errors.push_back(name + ": return type '" + ret + "'");
            continue;
        }
        std::string args = decl.substr(open + 1, close - open - 1);
        std::stringstream as(args);
        std::string a;
        bool ok = true;
        while (std::getline(as, a, ',')) {
            a = trim(a);
            if (a.empty() || a == "void") continue;
            Param prm;
            size_t split = a.find_last_of(" *");
            if (split == std::string::npos) {
                errors.push_back(name + ": parameter '" + a + "' has no name");
                ok = false;
                break;
            }
            prm.name = a.substr(split + 1);
            prm.type = trim(a.substr(0, split + 1));
            // Arrays written as name[] are pointers.
            if (prm.name.size() > 2 && prm.name.compare(prm.name.size() - 2, 2, "[]") == 0) {
                prm.name.resize(prm.name.size() - 2);
                prm.type += "*";
            }
            if (prm.type.find('*') != std::string::npos) {
                prm.kind = Kind::Pointer;
                std::string base = prm.type;
                prm.isConst = base.rfind("const ", 0) == 0;
                prm.isRecord = is_record_type(base);
            } else {
                std::string t = prm.type;
                if (t.rfind("const ", 0) == 0) t = t.substr(6);
                if (!value_kind(trim(t), prm.kind)) {
                    errors.push_back(name + ": parameter type '" + prm.type + "'");
                    ok = false;
                    break;
                }
            }
            p.params.push_back(prm);
        }
        if (ok) out[name] = p;
    }
    return out;
}

} // namespace sweep
