#include "shell/notice_form.h"

#include <array>
#include <cstddef>

namespace lodge {

namespace {

constexpr std::array<const char*, 6> notice = {
    "โปรดอ่าน",
    "กรณีเป็นบริษัทจดทะเบียนกับตลาดหลักทรัพย์เอ็มเอไอ และกิจการได้รับการส่งเสริมการลงทุน",
    "มีกำไรรวมแล้วเกิน 50 ล้านบาท หากเลือกลดอัตรา 2.3 ไม่สามารถยื่นแบบผ่านอินเทอร์เน็ตได้",
    "เนื่องจากโปรแกรมไม่อาจคำนวณการปันส่วนกำไรตาม พ.ร.ฎ. (ฉบับที่ 531)",
    "ที่เกิดจากกิจการที่ได้รับยกเว้นภาษีและกิจการที่ต้องเสียภาษี",
    "ดังนั้นขอให้ท่านไปยื่นแบบกระดาษ ณ สำนักงานภาษีกลางพื้นที่สาขา",
};

} // namespace

frmDialogAlert::frmDialogAlert(Program& program) : Form(program.desk, formName, notice[0]) {
    lblNotice.each([](Label& label, int line) { label.setCaption(notice[static_cast<std::size_t>(line)]); });
    cmdExit.setCaption("ปิดหน้าจอ");
    cmdExit.onClick = [this] { desk().unload(formName); };
}

} // namespace lodge
