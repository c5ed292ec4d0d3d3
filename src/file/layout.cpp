#include "file/layout.h"

#include "file/sources.h"
#include "file/special_tokens.h"

#include <fmt/format.h>

#include <algorithm>
#include <memory>

namespace lodge {

namespace {

using namespace source;

// --- The words of the table ---

using S = ReturnState;

constexpr Source start = textSource<&S::strStartDDMMYY>("strStartDDMMYY");
constexpr Source finish = textSource<&S::strFinishDDMMYY>("strFinishDDMMYY");
constexpr Source investment = numberSource<&S::intInvestment>("intInvestment");
constexpr Source taxYear = textSource<&S::strTaxYear>("strTaxYear");
constexpr Source filingType = textSource<&S::strFilingType>("strFilingType");
constexpr Source addNo = textSource<&S::strAddNo>("strAddNo");
constexpr Source website = textSource<&S::strWebsite>("strWebsite");
constexpr Source p1Box1 = numberSource<&S::intP1Box1>("intP1Box1");
constexpr Source p1Box2 = numberSource<&S::intP1Box2>("intP1Box2");
constexpr Source cashRefund = numberSource<&S::intCashRefund>("intCashRefund");
constexpr Source auditStatus = numberSource<&S::intAuditStatus>("intAuditStatus");
constexpr Source p1Box5 = numberSource<&S::intP1Box5>("intP1Box5");
constexpr Source item11Count = numberSource<&S::intItem11Count>("intItem11Count");
constexpr Source item11CountA = numberSource<&S::intItem11CountA>("intItem11CountA");
constexpr Source item11CountB = numberSource<&S::intItem11CountB>("intItem11CountB");
constexpr Source item11Start = textSource<&S::strItem11Start>("strItem11Start");
constexpr Source item11End = textSource<&S::strItem11End>("strItem11End");
constexpr Source item11Type = numberSource<&S::intItem11Type>("intItem11Type");

template <auto Member>
constexpr Source status(std::string_view name) {
    return textSource<&S::DataCtrl_P1, Member>(name);
}
template <auto Member>
constexpr Source tax(std::string_view name) {
    return textSource<&S::DataCtrl_P2, Member>(name);
}
template <auto Member>
constexpr Source green(std::string_view name) {
    return textSource<&S::modGreen, Member>(name);
}
template <auto Member>
constexpr Source ihq(std::string_view name) {
    return textSource<&S::modIHQ, Member>(name);
}

constexpr Source busType = status<&CompanyStatusRecord::IndcBusType>("DataCtrl_P1.IndcBusType");
constexpr Source status14 =
    numberSource<&S::DataCtrl_P1, &CompanyStatusRecord::ChkStatus14>("DataCtrl_P1.ChkStatus14");
constexpr Source newAtt1 = tax<&TaxRecord::NewAtt1>("DataCtrl_P2.NewAtt1");
constexpr Source newAtt2 = tax<&TaxRecord::NewAtt2>("DataCtrl_P2.NewAtt2");
constexpr Source newAtt3 = tax<&TaxRecord::NewAtt3>("DataCtrl_P2.NewAtt3");
constexpr Source newAtt4 = tax<&TaxRecord::NewAtt4>("DataCtrl_P2.NewAtt4");
constexpr Source workIncome = tax<&TaxRecord::WorkIncome>("DataCtrl_P2.WorkIncome");
constexpr Source workIncomeSum = tax<&TaxRecord::WorkIncomeSum>("DataCtrl_P2.WorkIncomeSum");
constexpr Source workTax = tax<&TaxRecord::WorkTax>("DataCtrl_P2.WorkTax");
constexpr Source workTaxSum = tax<&TaxRecord::WorkTaxSum>("DataCtrl_P2.WorkTaxSum");
constexpr Source greenIncome = green<&GreenRecord::GreenIncome>("modGreen.GreenIncome");
constexpr Source greenTax = green<&GreenRecord::GreenTax>("modGreen.GreenTax");
constexpr Source greenIncomeSum = green<&GreenRecord::GreenIncomeSum>("modGreen.GreenIncomeSum");
constexpr Source greenTaxSum = green<&GreenRecord::GreenTaxSum>("modGreen.GreenTaxSum");
constexpr Source rateCodeShown = green<&GreenRecord::RateCodeShown>("modGreen.RateCodeShown");
constexpr Source licenceConfm = ihq<&HeadquartersRecord::LicenceConfm>("modIHQ.LicenceConfm");
constexpr Source licenceStart = ihq<&HeadquartersRecord::LicenceStart>("modIHQ.LicenceStart");
constexpr Source licenceEnd = ihq<&HeadquartersRecord::LicenceEnd>("modIHQ.LicenceEnd");
constexpr Source boxA = ihq<&HeadquartersRecord::BoxA>("modIHQ.BoxA");
constexpr Source boxB = ihq<&HeadquartersRecord::BoxB>("modIHQ.BoxB");
constexpr Source boxC = ihq<&HeadquartersRecord::BoxC>("modIHQ.BoxC");
constexpr Source boxASum = ihq<&HeadquartersRecord::BoxASum>("modIHQ.BoxASum");
constexpr Source boxBSum = ihq<&HeadquartersRecord::BoxBSum>("modIHQ.BoxBSum");
constexpr Source boxCSum = ihq<&HeadquartersRecord::BoxCSum>("modIHQ.BoxCSum");
constexpr Source boxDateFrom = ihq<&HeadquartersRecord::BoxDateFrom>("modIHQ.BoxDateFrom");
constexpr Source boxDateTo = ihq<&HeadquartersRecord::BoxDateTo>("modIHQ.BoxDateTo");
constexpr Source boxMoney = ihq<&HeadquartersRecord::BoxMoney>("modIHQ.BoxMoney");
constexpr Source boxG1 = ihq<&HeadquartersRecord::BoxG1>("modIHQ.BoxG1");
constexpr Source boxG2 = ihq<&HeadquartersRecord::BoxG2>("modIHQ.BoxG2");

// Tokens. A run of three with a stride is one entry of each column: exempt, taxable, total.
constexpr Token token(
    TokenKind kind, Source source, std::uint8_t first, std::uint8_t count, std::uint8_t stride) {
    return {kind, {source, first, count, stride, 1}, nullptr};
}
constexpr Token text(Source source, std::uint8_t first = 0, std::uint8_t count = 1, std::uint8_t stride = 1) {
    return token(TokenKind::Text, source, first, count, stride);
}
constexpr Token number(Source source, std::uint8_t count = 1) {
    return token(TokenKind::Number, source, 0, count, 1);
}
constexpr Token date(Source source, std::uint8_t first = 0) {
    return token(TokenKind::Date, source, first, 1, 1);
}
constexpr Token maskDate(Source source, std::uint8_t first, std::uint8_t count = 1, std::uint8_t stride = 1) {
    return token(TokenKind::MaskDate, source, first, count, stride);
}
constexpr Token amount(Source source, std::uint8_t first, std::uint8_t count = 1, std::uint8_t stride = 1) {
    return token(TokenKind::Amount, source, first, count, stride);
}
constexpr Token choice(Source source, std::uint8_t first, std::uint8_t count, std::uint8_t stride = 1) {
    return token(TokenKind::Choice, source, first, count, stride);
}
constexpr Token sign(Source source, std::uint8_t first, std::uint8_t second) {
    return token(TokenKind::Sign, source, first, 2, static_cast<std::uint8_t>(second - first));
}
constexpr Token title(Source source, std::uint8_t entry) {
    return token(TokenKind::Title, source, entry, 1, 1);
}
constexpr Token plainAmounts(Source source, std::uint8_t first, std::uint8_t count) {
    return token(TokenKind::Plain, source, first, count, 1);
}
constexpr Token blank() { return {}; }
constexpr Token rule(const SpecialToken& special) { return {TokenKind::Special, {}, &special}; }

// Rows.
constexpr LayoutRow marker(int line, std::string_view text) {
    LayoutRow row;
    row.firstLine = row.lastLine = static_cast<std::uint16_t>(line);
    row.marker = text;
    return row;
}
template <typename... Tokens>
constexpr LayoutRow lines(int first, int last, Tokens... tokens) {
    LayoutRow row;
    row.firstLine = static_cast<std::uint16_t>(first);
    row.lastLine = static_cast<std::uint16_t>(last);
    row.form = LineForm::Tokens;
    row.tokens = {tokens...};
    row.tokenCount = sizeof...(tokens);
    return row;
}
template <typename... Tokens>
constexpr LayoutRow line(int number, Tokens... tokens) {
    return lines(number, number, tokens...);
}
template <typename... Tokens>
constexpr LayoutRow plain(int number, Tokens... tokens) {
    LayoutRow row = line(number, tokens...);
    row.form = LineForm::PlainTokens;
    return row;
}
constexpr LayoutRow values(int first, int last, Source source, std::uint8_t entry) {
    LayoutRow row = lines(first, last, text(source, entry));
    row.form = LineForm::SingleValue;
    return row;
}

// --- The table ---

// clang-format off
constexpr std::array layout{
    line(1, rule(special::statusWord), date(start), date(finish), number(investment), text(taxYear), rule(special::version))
        .before(special::takeTaxYear).after(special::noteInvestment),

    marker(2, "[PAGE1]"),
    line(3, blank(), text(filingType), text(addNo), text(P1, 11)).after(special::restoreFilingAndPeriod),
    line(4, text(busType), text(P1, 23, 6), text(P1, 44), number(status14)).after(special::restoreStatusBoxes),
    line(5, text(P1, 29, 2)),
    line(6, text(P1, 31), title(P1, 32), text(P1, 33, 4), date(P1, 37)),
    line(7, text(P1, 38), title(P1, 39), text(P1, 40, 4), text(P1, 45, 3)),

    marker(8, "[PAGE2]"),
    line(9, text(P2, 0), maskDate(P2, 1), text(P2, 2, 2), rule(special::privilege), text(P2, 8), text(P2, 21)),
    line(10, rule(special::payStatus), text(P2, 32)).before(special::applyIncomeEdit),
    line(11, choice(P2, 25, 3), rule(special::rate)).after(special::restoreTaxCase),
    line(12, text(P2, 34, 7)),
    line(13, rule(special::balanceLine4)),
    line(14, rule(special::balanceLine6)),
    line(15, rule(special::worksheet)),

    marker(16, "[PAGE3]"),
    line(17, text(P3_3, 0, 3, 20)),
    line(18, text(P3_3, 1, 3, 20)),
    line(19, choice(P3_3, 61, 2), amount(P3_3, 2), sign(P3_3, 0, 1), amount(P3_3, 22), sign(P3_3, 20, 21), amount(P3_3, 42)),
    line(20, text(P3_3, 3, 3, 20)),
    line(21, amount(P3_3, 4, 3, 20)),
    line(22, text(P3_3, 5, 3, 20)),
    line(23, amount(P3_3, 6, 3, 20)),
    line(24, text(P3_3, 7, 3, 20)),
    line(25, choice(P3_3, 63, 2), amount(P3_3, 8), sign(P3_3, 6, 7), amount(P3_3, 28), sign(P3_3, 26, 27), amount(P3_3, 48)),
    line(26, text(P3_3, 9, 3, 20)),
    line(27, text(P3_3, 10, 3, 20)),
    line(28, amount(P3_3, 11, 3, 20)),
    line(29, text(P3_3, 12, 3, 20)),
    line(30, amount(P3_3, 13, 3, 20)),
    line(31, text(P3_3, 14, 3, 20)),
    line(32, amount(P3_3, 15, 3, 20)),
    line(33, text(P3_3, 16, 3, 20)),
    line(34, text(P3_3, 67, 3)),
    line(35, text(P3_3, 17, 3, 20)),
    line(36, text(P3_3, 18, 3, 20)),
    line(37, amount(P3_3, 19, 3, 20)),
    line(38, choice(P3_3, 65, 2), amount(P3_3, 60)),
    lines(39, 47, text(P3_4, 0, 3, 9)),

    marker(48, "[PAGE4]"),
    lines(49, 65, text(P4_5, 0, 3, 17)),
    lines(66, 72, text(P4_6, 0, 3, 7)),
    lines(73, 77, text(P4_7, 0, 3, 5)),

    marker(78, "[PAGE5]"),
    lines(79, 94, text(P5_8, 0, 3, 24)),
    line(95, text(P5_8, 72, 3)),
    lines(96, 103, text(P5_8, 16, 3, 24)),
    lines(104, 107, text(P5_9, 0, 3, 6)),
    line(108, text(P5_9, 18, 3)),
    lines(109, 110, text(P5_9, 4, 3, 6)),

    marker(111, "[PAGE6]"),
    lines(112, 119, text(P6_10, 0, 3, 12)),
    marker(120, emptyValueText),
    line(121, text(P6_10, 39, 3)),
    lines(122, 125, text(P6_10, 8, 3, 12)),
    line(126, text(P6_10, 36, 3)),
    lines(127, 134, maskDate(P6_11, 0, 2, 13), text(P6_11, 26, 4).by(4)),
    lines(135, 139, maskDate(P6_11, 8, 2, 13), text(P6_11, 58, 2).by(2)),
    line(140, text(P6_11, 68)),
    line(141, text(P6_10, 42, 3)),
    line(142, text(P6_10, 45, 3)),
    line(143, text(P6_10, 48, 3)),

    marker(144, "[PAGE7]"),
    line(145, text(P7_12, 0, 10)),
    line(146, text(P7_12, 10, 10), choice(P7_12, 23, 2), text(P7_12, 20, 3)),

    marker(147, "[PAGE8]"),
    line(148, choice(P8, 6, 2, 2), text(P8, 7)),
    line(149, choice(P8, 9, 2, 2), text(P8, 10)),
    line(150, choice(P8, 12, 2, 2), text(P8, 13)),
    line(151, choice(P8, 15, 2, 2), text(P8, 16)),
    line(152, choice(P8, 18, 2), text(P8, 20)),
    line(153, text(P8, 21, 2), date(P8, 23)),

    marker(154, "[ADD IN 2555]"),
    marker(155, "[PAGE3]"),
    values(156, 160, P3_3, 70),
    marker(161, "[PAGE5]"),
    values(162, 165, P5_8, 75),
    marker(166, "[PAGE6]"),
    values(167, 173, P6_10, 51),

    marker(174, "[ADD IN 2556]"),
    marker(175, "[PAGE3]"),
    values(176, 176, P3_3, 75),
    marker(177, "[PAGE5]"),
    values(178, 178, P5_8, 79),
    marker(179, "[PAGE6]"),
    values(180, 182, P6_10, 58),

    marker(183, "[ADD IN 2557]"),
    marker(184, "[PAGE3]"),
    values(185, 186, P3_3, 76),
    marker(187, "[PAGE5]"),
    values(188, 189, P5_8, 80),
    marker(190, "[PAGE6]"),
    values(191, 195, P6_10, 61),

    marker(196, "[IHQ] - LICENCE").under(196),
    line(197, text(licenceConfm)).under(196),
    line(198, text(licenceStart)).under(196),
    line(199, text(licenceEnd)).under(196),
    marker(200, "[IHQ] - EARNINGS").under(200),
    lines(201, 208, text(boxA), text(boxB), text(boxC)).under(200),
    line(209, text(boxASum), text(boxBSum), text(boxCSum)).under(200),
    marker(210, "[IHQ] - NETLOSS").under(210),
    lines(211, 215, text(boxDateFrom), text(boxDateTo)).under(210),
    line(216, text(boxMoney, 0, 20)).under(210),
    line(217, text(boxG1), text(boxG2)).under(210),
    marker(218, "[GREEN-BOX").under(218), // Without its closing bracket: so it stands in every file.
    line(219, text(greenIncome, 0, 4)).under(218),
    line(220, plainAmounts(greenTax, 0, 4)).under(218),
    line(221, text(rateCodeShown), text(greenIncomeSum), text(greenTaxSum)).after(special::restoreWorksheetTax).under(218),
    marker(222, "[NEW3_AFTER21]").under(222),
    plain(223, rule(special::statedResult)).under(222),

    marker(224, "[ADD IN 2560]"),
    marker(225, "[PAGE1]"),
    plain(226, text(website), number(p1Box1), number(p1Box2), number(cashRefund), number(auditStatus), number(p1Box5)),
    marker(227, "[PAGE2]"),
    plain(228, text(newAtt1), text(newAtt2), text(newAtt3), text(newAtt4)),
    plain(229, text(workIncome, 0, 4), text(workIncomeSum)),
    plain(230, text(workTax, 0, 4), text(workTaxSum)),
    marker(231, "[PAGE3]"),
    values(232, 232, P3_3, 78),
    marker(233, "[PAGE5]"),
    values(234, 234, P5_8, 82),
    marker(235, "[PAGE6]"),
    values(236, 238, P6_10, 66),

    marker(239, "[ADD IN 2561]"),
    marker(240, "[PAGE3]"),
    values(241, 243, P3_3, 79),
    marker(244, "[PAGE5]"),
    values(245, 247, P5_8, 83),
    marker(248, "[PAGE6]"),
    values(249, 257, P6_10, 69),
    plain(258, number(item11Count), number(item11CountA), number(item11CountB)),
    plain(259, text(item11Start, 0, 13)),
    plain(260, text(item11End, 0, 13)),
    plain(261, number(item11Type, 13)),
};
// clang-format on

// --- Describing it ---

std::string entryName(const Source& source, std::size_t index) {
    if (!source.isArray) return std::string(source.name);
    const bool isPage = source.name.starts_with("strFld");
    return fmt::format(fmt::runtime(isPage ? "{}[{}]" : "{}({})"), source.name, index);
}

// The entries of one line: "0..9", "0, 20, 40", with "+4" when each further line adds four.
std::string describeEntries(const Entries& entries, bool severalLines) {
    std::string name(entries.source.name);
    const bool isPage = name.starts_with("strFldPage");
    if (isPage) name = "P" + name.substr(std::string_view("strFldPage").size());
    if (!entries.source.isArray) return name;

    std::string list;
    if (entries.count > 2 && entries.stride == 1) {
        list = fmt::format("{}..{}", entries.at(0, 0), entries.at(entries.count - 1U, 0));
    } else {
        for (std::size_t place = 0; place < entries.count; ++place) {
            list += fmt::format("{}{}", place > 0 ? ", " : "", entries.at(place, 0));
        }
    }
    if (severalLines) list += fmt::format(" +{}", entries.step);
    return isPage ? name + "[" + list + "]" : name + "(" + list + ")";
}

std::string_view describeKind(TokenKind kind) {
    switch (kind) {
    case TokenKind::Date:
    case TokenKind::MaskDate: return "date";
    case TokenKind::Amount: return "amount";
    case TokenKind::Choice: return "choice";
    case TokenKind::Sign: return "sign";
    case TokenKind::Title: return "title";
    case TokenKind::Plain: return "plain";
    case TokenKind::Blank:
    case TokenKind::Text:
    case TokenKind::Number:
    case TokenKind::Special: break;
    }
    return {};
}

std::string describeToken(const Token& token, bool severalLines) {
    if (token.kind == TokenKind::Blank) return "empty";
    if (token.kind == TokenKind::Special) return std::string(token.special->rule);
    const std::string entries = "`" + describeEntries(token.entries, severalLines) + "`";
    const std::string_view kind = describeKind(token.kind);
    return kind.empty() ? entries : fmt::format("{} {}", kind, entries);
}

bool isCarried(TokenKind kind) {
    return kind != TokenKind::Blank && kind != TokenKind::Sign && kind != TokenKind::Special;
}

void appendNames(std::vector<std::string>& names, const Entries& entries, std::size_t line) {
    for (std::size_t place = 0; place < entries.count; ++place) {
        names.push_back(entryName(entries.source, entries.at(place, line)));
    }
}

} // namespace

void TokenWriter::add(std::string_view token) {
    text += token;
    text += '|';
}

std::string_view TokenReader::next() {
    if (tokens.empty()) return {};
    const std::string_view token = tokens.front();
    tokens = tokens.subspan(1);
    return token;
}

std::span<const LayoutRow> layoutRows() { return layout; }

const LayoutRow* rowOfLine(std::size_t line) {
    const auto row = std::ranges::lower_bound(layout, line, {}, &LayoutRow::lastLine);
    return row == layout.end() ? nullptr : std::to_address(row);
}

std::string describeRow(const LayoutRow& row) {
    if (row.form == LineForm::Marker) return fmt::format("`{}`", row.marker);
    std::string text = row.form == LineForm::SingleValue ? "value " : "";
    for (std::size_t k = 0; k < row.tokenCount; ++k) {
        if (k > 0) text += ", ";
        text += describeToken(row.tokens[k], row.firstLine != row.lastLine);
    }
    return text;
}

std::vector<std::string> carriedNames(const LayoutRow& row) {
    std::vector<std::string> names;
    for (std::size_t line = 0; line + row.firstLine <= row.lastLine; ++line) {
        for (const Token& token : row.allTokens()) {
            if (isCarried(token.kind)) appendNames(names, token.entries, line);
            if (token.kind != TokenKind::Special) continue;
            for (const Entries& entries : token.special->carries)
                appendNames(names, entries, line);
        }
    }
    return names;
}

} // namespace lodge
