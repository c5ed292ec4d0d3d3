// What a printed document carries beside its pages.
#include "file/return_file.h"
#include "print/document_data.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lodge {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

constexpr std::size_t numberField = 45;

TEST(DocumentTitle, NamesTheFormAndTheFiler) {
    ReturnState state;
    EXPECT_EQ(documentTitle(state), "ก.ข.ค.77");
    state.strFldPage1[numberField] = "0105536000313";
    EXPECT_EQ(documentTitle(state), "ก.ข.ค.77 0105536000313");
}

TEST(AttachedData, AreTheFieldsThatAStoreWouldWrite) {
    ReturnState state;
    state.strFldPage1[numberField] = "0105536000313";
    state.strFldPage3_3[20] = "1000.00";
    const Attachment data = attachedData(state, "01055360003132561100N.txt");
    EXPECT_EQ(data.name, "return.json");
    EXPECT_EQ(data.mimeType, "application/json");
    EXPECT_THAT(data.bytes, HasSubstr("\"file\": \"01055360003132561100N.txt\""));
    EXPECT_THAT(data.bytes, HasSubstr("\"strFldPage1[45]\": \"0105536000313\""));
    EXPECT_THAT(data.bytes, HasSubstr("\"strFldPage3_3[20]\": \"1000.00\""));
}

TEST(AttachedData, DoNotTellTheFoldersOfTheMachine) {
    ReturnState state;
    state.strFileName = "/home/somebody/01055360003132561100NM.txt";
    EXPECT_THAT(attachedData(state, "a.txt").bytes, Not(HasSubstr("somebody")));
}

TEST(AttachedData, LeaveTheReturnAsItIs) {
    ReturnState state;
    state.strFldPage1[numberField] = "0105536000313";
    ReturnState before = state;
    (void)attachedData(state, "a.txt");
    EXPECT_EQ(state.strTaxYear, before.strTaxYear);
    EXPECT_EQ(encodeReturn(state), encodeReturn(before));
}

} // namespace
} // namespace lodge
