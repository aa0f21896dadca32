// SPDX-License-Identifier: MIT
#include "setup/personal_text.h"

#include "base/text.h"

namespace personal {

std::string compose(const Personal& data) {
    std::string content;
    for (int element = kFirst; element <= kLast; ++element) content += "\"" + data(element) + "\"\r\n";
    return content;
}

void setDefaults(Personal& data) {
    data(Call) = "urCALL";
    data(Name) = "Name";
    data(Address) = "Address";
    data(City) = "City, ST Zip";
    data(Grid) = "FN20jk";
    data(Club) = "";
    data(Section) = "EPA";
    data(OperatorCategory) = "SINGLE-OP";
    data(Power) = "LOW";
    data(StationCategory) = "FIXED";
    data(Transmitter) = "ONE";
    data(BandCategory) = "ALL";
}

void parse(std::string_view content, Personal& data) {
    int element = 0;
    for (const std::string& item : text::items(content)) data(++element) = item;
}

}  // namespace personal
