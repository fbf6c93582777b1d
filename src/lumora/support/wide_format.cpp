#include <lumora/support/wide_format.h>

#include <algorithm>
#include <stdexcept>

namespace lumora {
namespace {

struct Directive {
  bool left = false;
  bool zero = false;
  bool plus = false;
  bool space = false;
  bool alternate = false;
  size_t width = 0;
  int precision = -1;  // none
  char16_t conversion = 0;
};

[[noreturn]] void Fail(const char* what) {
  throw std::invalid_argument(std::string("wide format: ") + what);
}

// Walks the template and the arguments together.
class Formatter {
 public:
  Formatter(std::u16string_view pattern, std::span<const FormatArg> args)
      : pattern_(pattern), args_(args) {}

  std::u16string Run() {
    while (pos_ < pattern_.size()) {
      char16_t c = pattern_[pos_++];
      if (c != u'%') {
        out_ += c;
        continue;
      }
      Convert(ParseDirective());
    }
    return std::move(out_);
  }

 private:
  const FormatArg& NextArg() {
    if (next_arg_ >= args_.size()) Fail("missing argument");
    return args_[next_arg_++];
  }

  int NextIntArg() {
    const FormatArg& arg = NextArg();
    if (arg.is_text()) Fail("text given for '*'");
    return static_cast<int>(arg.AsSigned());
  }

  bool Peek(char16_t c) const { return pos_ < pattern_.size() && pattern_[pos_] == c; }

  size_t ParseNumber() {
    size_t n = 0;
    while (pos_ < pattern_.size() && pattern_[pos_] >= u'0' && pattern_[pos_] <= u'9') {
      n = n * 10 + static_cast<size_t>(pattern_[pos_++] - u'0');
    }
    return n;
  }

  void ParseFlags(Directive& directive) {
    for (;; ++pos_) {
      if (Peek(u'-')) {
        directive.left = true;
      } else if (Peek(u'0')) {
        directive.zero = true;
      } else if (Peek(u'+')) {
        directive.plus = true;
      } else if (Peek(u' ')) {
        directive.space = true;
      } else if (Peek(u'#')) {
        directive.alternate = true;
      } else {
        return;
      }
    }
  }

  void ParseWidth(Directive& directive) {
    if (!Peek(u'*')) {
      directive.width = ParseNumber();
      return;
    }
    ++pos_;
    int width = NextIntArg();
    // A negative width from an argument means left alignment, as in printf.
    if (width < 0) directive.left = true;
    directive.width = static_cast<size_t>(width < 0 ? -static_cast<int64_t>(width) : width);
  }

  void ParsePrecision(Directive& directive) {
    if (!Peek(u'.')) return;
    ++pos_;
    if (!Peek(u'*')) {
      directive.precision = static_cast<int>(ParseNumber());
      return;
    }
    ++pos_;
    int precision = NextIntArg();
    directive.precision = precision < 0 ? -1 : precision;
  }

  Directive ParseDirective() {
    Directive directive;
    ParseFlags(directive);
    ParseWidth(directive);
    ParsePrecision(directive);
    while (Peek(u'h') || Peek(u'l')) ++pos_;
    if (pos_ >= pattern_.size()) Fail("template ends inside a conversion");
    directive.conversion = pattern_[pos_++];
    return directive;
  }

  void Convert(const Directive& directive) {
    switch (directive.conversion) {
      case u'%':
        out_ += u'%';
        return;
      case u'd':
      case u'i':
      case u'u':
      case u'x':
      case u'X':
        return Integer(directive, NextArg());
      case u'c':
        return Character(directive, NextArg());
      case u's':
        return Text(directive, NextArg());
      default:
        Fail("unsupported conversion");
    }
  }

  void Pad(size_t used, size_t width, char16_t fill) {
    if (used < width) out_.append(width - used, fill);
  }

  // Places body (after prefix) in the field, honouring "-" and the given fill.
  void Field(const Directive& directive, std::u16string_view prefix, std::u16string_view body,
             bool zero_fill) {
    size_t used = prefix.size() + body.size();
    if (directive.left) {
      out_.append(prefix).append(body);
      Pad(used, directive.width, u' ');
    } else if (zero_fill) {
      out_.append(prefix);
      Pad(used, directive.width, u'0');
      out_.append(body);
    } else {
      Pad(used, directive.width, u' ');
      out_.append(prefix).append(body);
    }
  }

  // The sign of a signed conversion, or the "0x" of an alternate hexadecimal one.
  static std::u16string_view Prefix(const Directive& directive, bool negative, uint64_t magnitude) {
    switch (directive.conversion) {
      case u'd':
      case u'i':
        if (negative) return u"-";
        if (directive.plus) return u"+";
        return directive.space ? u" " : u"";
      case u'x':
        return directive.alternate && magnitude != 0 ? u"0x" : u"";
      case u'X':
        return directive.alternate && magnitude != 0 ? u"0X" : u"";
      default:
        return u"";
    }
  }

  void Integer(const Directive& directive, const FormatArg& arg) {
    if (arg.is_text()) Fail("text given for an integer conversion");
    bool is_signed = directive.conversion == u'd' || directive.conversion == u'i';
    bool hex = directive.conversion == u'x' || directive.conversion == u'X';
    int64_t value = arg.AsSigned();
    bool negative = is_signed && value < 0;
    uint64_t magnitude = !is_signed ? arg.AsUnsigned()
                         : negative ? 0 - static_cast<uint64_t>(value)
                                    : static_cast<uint64_t>(value);
    std::u16string digits = Digits(magnitude, hex, directive.conversion == u'X');
    if (directive.precision >= 0) {
      // An explicit precision is a minimum digit count; precision 0 prints zero as nothing.
      if (directive.precision == 0 && magnitude == 0) digits.clear();
      size_t wanted = static_cast<size_t>(directive.precision);
      if (digits.size() < wanted) digits.insert(0, wanted - digits.size(), u'0');
    }
    Field(directive, Prefix(directive, negative, magnitude), digits,
          directive.zero && directive.precision < 0);
  }

  static std::u16string Digits(uint64_t value, bool hex, bool upper) {
    const char16_t* symbols = upper ? u"0123456789ABCDEF" : u"0123456789abcdef";
    uint64_t base = hex ? 16 : 10;
    std::u16string digits;
    do {
      digits += symbols[value % base];
      value /= base;
    } while (value != 0);
    std::reverse(digits.begin(), digits.end());
    return digits;
  }

  void Character(const Directive& directive, const FormatArg& arg) {
    if (arg.is_text()) Fail("text given for %c");
    char16_t unit = static_cast<char16_t>(arg.AsUnsigned());
    Field(directive, {}, std::u16string_view(&unit, 1), false);
  }

  void Text(const Directive& directive, const FormatArg& arg) {
    if (!arg.is_text()) Fail("number given for %s");
    std::u16string_view text = arg.text();
    if (directive.precision >= 0) text = text.substr(0, static_cast<size_t>(directive.precision));
    Field(directive, {}, text, false);
  }

  std::u16string_view pattern_;
  std::span<const FormatArg> args_;
  size_t pos_ = 0;
  size_t next_arg_ = 0;
  std::u16string out_;
};

}  // namespace

int64_t FormatArg::AsSigned() const {
  unsigned shift = 64 - 8 * size_;
  return static_cast<int64_t>(bits_ << shift) >> shift;
}

uint64_t FormatArg::AsUnsigned() const {
  unsigned shift = 64 - 8 * size_;
  return (bits_ << shift) >> shift;
}

std::u16string FormatWideArgs(std::u16string_view pattern, std::span<const FormatArg> args) {
  return Formatter(pattern, args).Run();
}

}  // namespace lumora
