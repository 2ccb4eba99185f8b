// Row serials: the links between rows hold serials, and lists of them are kept in
// ascending order so that a walk down the grid can merge against them.
#include <utility>

#include "grid/row_model/grid_columns.h"

#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

// "3,1,2," gives "1,2,3": a trailing comma is cut, the elements compare as numbers
// (an empty one as 0) and come back written as numbers ("007" as "7").
std::string Zuro_frmDispatch_Dispatch::GetSerialInAscOrder(const std::string& szList) {
    if (szList.empty()) return "";
    std::string szTrimmed = szList;
    if (szTrimmed.back() == ',') szTrimmed.pop_back();

    std::vector<double> vSerials;
    for (const auto& element : platform::Split(szTrimmed, ",")) vSerials.push_back(platform::Val(element));

    // Exchange sort, as the lists are short: each place takes the smallest of those
    // after it.
    for (std::size_t i = 0; i < vSerials.size(); ++i)
        for (std::size_t j = i + 1; j < vSerials.size(); ++j)
            if (vSerials[j] < vSerials[i]) std::swap(vSerials[i], vSerials[j]);

    std::string szSorted;
    for (std::size_t i = 0; i < vSerials.size(); ++i)
        szSorted += (i == 0 ? "" : ",") + platform::NumberToText(vSerials[i]);
    return szSorted;
}

// Gives a row its serial. With bToSet the first argument is a serial, not a row:
// the loader of a stored note sets the counter to each stored row's serial in turn,
// so it ends at the last row's serial, which need not be the highest.
void Zuro_frmDispatch_Dispatch::Add_Unique_Serial(long& nRow, std::int16_t& iResetAll, std::int16_t& bToSet) {
    platform::RunHandled(host_.global, FormName() + " : Add_Unique_Serial - ", [&] {
        if (bToSet != 0) {
            nSerialCounter = platform::CInt(static_cast<double>(nRow));
            return;
        }
        // A grid down to one row starts again at 1, whatever was asked.
        if (DTFlexDispatch.GridRows() == 1) {
            DTFlexDispatch.SetCell(1, grid::colSerialNo, "1");
            nSerialCounter = 1;
            return;
        }
        if (iResetAll == 0) {
            if (platform::ToNumber(
                    platform::Value(DTFlexDispatch.GetCell(static_cast<int>(nRow), grid::colSerialNo))) == 0) {
                nSerialCounter = platform::CInt(static_cast<double>(nSerialCounter) + 1);
                DTFlexDispatch.SetCell(static_cast<int>(nRow), grid::colSerialNo,
                                       platform::NumberToText(nSerialCounter));
            }
            return;
        }
        for (int nLine = 1; nLine <= DTFlexDispatch.GridRows(); ++nLine) {
            nSerialCounter = platform::CInt(nLine);
            DTFlexDispatch.SetCell(nLine, grid::colSerialNo, platform::NumberToText(nLine));
        }
    });
}

// The first row carrying the serial; 0 when none does. The walk down the grid is
// made once for as long as the grid stays as it is: the scheme passes ask after
// every link of every line.
long Zuro_frmDispatch_Dispatch::getRowNumber(long nSerial) {
    long nFound = 0;
    platform::RunHandled(host_.global, "Dispatch - getRowNumber: ", [&] {
        const auto& grid = DTFlexDispatch;
        if (!serialIndex_.read || serialIndex_.stamp != grid.ContentStamp()) {
            serialIndex_.rows.clear();
            for (int nLine = 1; nLine <= grid.GridRows(); ++nLine)
                serialIndex_.rows.try_emplace(
                    platform::ToNumber(platform::Value(grid.GetCell(nLine, grid::colSerialNo))), nLine);
            serialIndex_.read = true;
            serialIndex_.stamp = grid.ContentStamp();
        }
        const auto found = serialIndex_.rows.find(static_cast<double>(nSerial));
        if (found != serialIndex_.rows.end()) nFound = found->second;
    });
    return nFound;
}

}  // namespace screen
