// SPDX-License-Identifier: MIT
#include "export/summary_sheet.h"

#include "base/print_line.h"
#include "base/text.h"
#include "export/category.h"

namespace exporting {

namespace {

/// The lines of a sheet, most of them one text at one column.
class Sheet {
public:
    PrintLine line() { return PrintLine(lines_); }
    void put(int column, std::string_view text) { line().at(column, text).end(); }
    void empty() { line().end(); }
    void rule() { put(5, std::string(63, '-')); }
    std::string take() { return std::move(lines_); }

private:
    std::string lines_;
};

void addOperators(Sheet& sheet, const Personal& data) {
    sheet.put(5, "Operators:");
    for (const int element : {personal::Operators, personal::MoreOperators}) {
        if (!data(element).empty()) sheet.put(5, data(element));
    }
}

void addHead(Sheet& sheet, const Session& session, const Personal& data) {
    const bool multi = isMultiOperator(data(personal::OperatorCategory));
    sheet.line()
        .at(5, session.ContestName)
        .at(50, data(personal::Call))
        .at(62, text::left(data(personal::Grid), 4))
        .end();
    sheet.empty();
    if (multi && data(personal::Call) == "SIGRAINI") {
        sheet.put(20, "Praituna VHF Radio Club");
        sheet.empty();
    }
    sheet.line()
        .at(5, data(personal::OperatorCategory))
        .then(" ALL ")
        .then(data(personal::Power))
        .then(text::blanks(30))
        .then(data(personal::Section))
        .then(" Section")
        .end();
    sheet.empty();
    if (multi) addOperators(sheet, data);
    sheet.empty();
}

void addBands(Sheet& sheet, const Session& session) {
    sheet.line()
        .at(5, "Band")
        .at(16, "QSOs X pt =")
        .inZone("QSO pts.  X")
        .inZone("Grids   =")
        .inZone("Points")
        .end();
    sheet.rule();
    for (int band = kFirstBand; band <= kLastBand; ++band) {
        if (!session.BandWorked(band)) continue;
        sheet.line()
            .at(5, session.BandName(band))
            .numberAt(15, session.BandQSOs(band))
            .numberAt(22, session.BandPoints(band))
            .numberInZone(session.BandQSOPoints(band))
            .numberInZone(session.BandGrids(band))
            .numberInZone(session.BandScore(band))
            .end();
    }
    sheet.rule();
}

std::int64_t totalQsos(const Session& session) {
    std::int64_t qsos = 0;
    for (int band = kFirstBand; band <= kLastBand; ++band) qsos += session.BandQSOs(band);
    return qsos;
}

void addTotals(Sheet& sheet, const Session& session) {
    sheet.line()
        .at(5, "TOTALS")
        .numberInZone(totalQsos(session))
        .numberInZone(session.TotalQSOPoints)
        .numberInZone(session.GridTotal)
        .numberInZone(static_cast<std::int64_t>(session.TotalScore))
        .end();
}

void addDeclaration(Sheet& sheet, const Personal& data, std::string_view today) {
    sheet.empty();
    sheet.put(5, "Club participation ?    Yes  No");
    sheet.line().at(5, "ARRL Affiliated Club: ").then(data(personal::Club)).end();
    sheet.empty();
    sheet.put(6, "I have observed all contest rules, as well as all regulations");
    sheet.put(5, "established for Amateur Radio in my country. This report is true");
    sheet.put(5, "and accurate to the best of my knowledge. I agree to be bound by");
    sheet.put(5, "the decisions of the Awards Committee.");
    sheet.empty();
    sheet.line().at(18, "Date: ").then(today).then("  Call:  ").then(data(personal::Call)).end();
    sheet.empty();
    for (const int element : {personal::Name, personal::Address, personal::City})
        sheet.put(20, data(element));
}

}  // namespace

bool summaryNotRequired(int number) { return number < 12 || number == 13; }

std::string summarySheet(const Session& session, const Personal& data, std::string_view today) {
    const bool eachBandAlone = session.ContestNumber == "19";
    Sheet sheet;
    addHead(sheet, session, data);
    addBands(sheet, session);
    if (!eachBandAlone) addTotals(sheet, session);
    sheet.empty();
    if (!eachBandAlone) {
        sheet.line()
            .at(28, "Claimed score = ")
            .thenNumber(static_cast<std::int64_t>(session.TotalScore))
            .end();
    }
    addDeclaration(sheet, data, today);
    return sheet.take();
}

}  // namespace exporting
