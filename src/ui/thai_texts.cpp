#include "ui/thai_texts.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace lodge {

namespace {

struct ThaiText {
    std::string_view context;
    std::string_view source;
    const char* thai;
};

// clang-format off
constexpr ThaiText texts[] = {
    {"QPlatformTheme", "OK", "ตกลง"},
    {"QPlatformTheme", "Cancel", "ยกเลิก"},
    {"QPlatformTheme", "&Yes", "ใช่"},
    {"QPlatformTheme", "&No", "ไม่ใช่"},
    {"QPlatformTheme", "Yes to &All", "ใช่ทั้งหมด"},
    {"QPlatformTheme", "N&o to All", "ไม่ใช่ทั้งหมด"},
    {"QPlatformTheme", "Open", "เปิด"},
    {"QPlatformTheme", "Save", "จัดเก็บ"},
    {"QPlatformTheme", "Save All", "จัดเก็บทั้งหมด"},
    {"QPlatformTheme", "Close", "ปิด"},
    {"QPlatformTheme", "Apply", "นำไปใช้"},
    {"QPlatformTheme", "Reset", "ตั้งใหม่"},
    {"QPlatformTheme", "Restore Defaults", "คืนค่าเริ่มต้น"},
    {"QPlatformTheme", "Discard", "ไม่จัดเก็บ"},
    {"QPlatformTheme", "Help", "วิธีใช้"},
    {"QPlatformTheme", "Abort", "ยุติ"},
    {"QPlatformTheme", "Retry", "ลองใหม่"},
    {"QPlatformTheme", "Ignore", "ข้าม"},
    {"QDialogButtonBox", "OK", "ตกลง"},
    {"QMessageBox", "Show Details...", "แสดงรายละเอียด..."},
    {"QMessageBox", "Hide Details...", "ซ่อนรายละเอียด..."},
    {"QDialog", "What's This?", "นี่คืออะไร"},
    {"QInputDialog", "Enter a value:", "กรอกค่า:"},

    {"QFileDialog", "Look in:", "ค้นหาใน:"},
    {"QFileDialog", "File &name:", "ชื่อไฟล์:"},
    {"QFileDialog", "Files of type:", "ชนิดไฟล์:"},
    {"QFileDialog", "Directory:", "โฟลเดอร์:"},
    {"QFileDialog", "Open", "เปิด"},
    {"QFileDialog", "&Open", "เปิด"},
    {"QFileDialog", "&Save", "จัดเก็บ"},
    {"QFileDialog", "Save As", "จัดเก็บเป็น"},
    {"QFileDialog", "&Choose", "เลือก"},
    {"QFileDialog", "Find Directory", "เลือกโฟลเดอร์"},
    {"QFileDialog", "Directories", "โฟลเดอร์"},
    {"QFileDialog", "Files", "ไฟล์"},
    {"QFileDialog", "All files (*)", "ไฟล์ทั้งหมด (*)"},
    {"QFileDialog", "All Files (*)", "ไฟล์ทั้งหมด (*)"},
    {"QFileDialog", "Back", "ย้อนกลับ"},
    {"QFileDialog", "Go back", "ย้อนกลับ"},
    {"QFileDialog", "Forward", "ไปข้างหน้า"},
    {"QFileDialog", "Go forward", "ไปข้างหน้า"},
    {"QFileDialog", "Parent Directory", "โฟลเดอร์ชั้นบน"},
    {"QFileDialog", "Go to the parent directory", "ไปที่โฟลเดอร์ชั้นบน"},
    {"QFileDialog", "Create New Folder", "สร้างโฟลเดอร์ใหม่"},
    {"QFileDialog", "Create a New Folder", "สร้างโฟลเดอร์ใหม่"},
    {"QFileDialog", "New Folder", "โฟลเดอร์ใหม่"},
    {"QFileDialog", "&New Folder", "โฟลเดอร์ใหม่"},
    {"QFileDialog", "List View", "แบบรายการ"},
    {"QFileDialog", "Change to list view mode", "แสดงแบบรายการ"},
    {"QFileDialog", "Detail View", "แบบละเอียด"},
    {"QFileDialog", "Change to detail view mode", "แสดงแบบละเอียด"},
    {"QFileDialog", "Sidebar", "แถบด้านข้าง"},
    {"QFileDialog", "List of places and bookmarks", "รายการตำแหน่งที่ใช้บ่อย"},
    {"QFileDialog", "Recent Places", "ตำแหน่งล่าสุด"},
    {"QFileDialog", "&Rename", "เปลี่ยนชื่อ"},
    {"QFileDialog", "&Delete", "ลบ"},
    {"QFileDialog", "Delete", "ลบ"},
    {"QFileDialog", "Remove", "นำออก"},
    {"QFileDialog", "Show ", "แสดง "},
    {"QFileDialog", "Show &hidden files", "แสดงไฟล์ที่ซ่อนไว้"},
    {"QFileDialog", "Alt+Left", "Alt+Left"},
    {"QFileDialog", "Alt+Right", "Alt+Right"},
    {"QFileDialog", "Alt+Up", "Alt+Up"},
    {"QFileDialog", "Could not delete directory.", "ลบโฟลเดอร์ไม่ได้"},
    {"QFileDialog", "Are you sure you want to delete '%1'?", "ต้องการลบ '%1' ใช่หรือไม่"},
    {"QFileDialog", "'%1' is write protected.\nDo you want to delete it anyway?",
        "'%1' ห้ามเขียนทับ\nต้องการลบหรือไม่"},
    {"QFileDialog", "%1 already exists.\nDo you want to replace it?", "มี %1 อยู่แล้ว\nต้องการแทนที่หรือไม่"},
    {"QFileDialog", "%1\nFile not found.\nPlease verify the correct file name was given.",
        "%1\nไม่พบไฟล์\nโปรดตรวจสอบชื่อไฟล์"},
    {"QFileDialog", "%1\nDirectory not found.\nPlease verify the correct directory name was given.",
        "%1\nไม่พบโฟลเดอร์\nโปรดตรวจสอบชื่อโฟลเดอร์"},
    {"QFileSystemModel", "Name", "ชื่อ"},
    {"QFileSystemModel", "Size", "ขนาด"},
    {"QFileSystemModel", "Kind", "ชนิด"},
    {"QFileSystemModel", "Type", "ชนิด"},
    {"QFileSystemModel", "Date Modified", "วันที่แก้ไข"},
    {"QFileSystemModel", "My Computer", "คอมพิวเตอร์"},
    {"QFileSystemModel", "Computer", "คอมพิวเตอร์"},
    {"QAbstractFileIconProvider", "Drive", "ไดรฟ์"},
    {"QAbstractFileIconProvider", "File", "ไฟล์"},
    {"QAbstractFileIconProvider", "%1 File", "ไฟล์ %1"},
    {"QAbstractFileIconProvider", "File Folder", "โฟลเดอร์"},
    {"QAbstractFileIconProvider", "Folder", "โฟลเดอร์"},
    {"QAbstractFileIconProvider", "Alias", "ทางลัด"},
    {"QAbstractFileIconProvider", "Shortcut", "ทางลัด"},
    {"QAbstractFileIconProvider", "Unknown", "ไม่ทราบชนิด"},

    {"QLineEdit", "&Undo", "เลิกทำ"},
    {"QLineEdit", "&Redo", "ทำซ้ำ"},
    {"QLineEdit", "Cu&t", "ตัด"},
    {"QLineEdit", "&Copy", "คัดลอก"},
    {"QLineEdit", "&Paste", "วาง"},
    {"QLineEdit", "Delete", "ลบ"},
    {"QLineEdit", "Select All", "เลือกทั้งหมด"},
    {"QWidgetTextControl", "&Undo", "เลิกทำ"},
    {"QWidgetTextControl", "&Redo", "ทำซ้ำ"},
    {"QWidgetTextControl", "Cu&t", "ตัด"},
    {"QWidgetTextControl", "&Copy", "คัดลอก"},
    {"QWidgetTextControl", "Copy &Link Location", "คัดลอกที่อยู่ลิงก์"},
    {"QWidgetTextControl", "&Paste", "วาง"},
    {"QWidgetTextControl", "Delete", "ลบ"},
    {"QWidgetTextControl", "Select All", "เลือกทั้งหมด"},
    {"QAbstractSpinBox", "&Step up", "เพิ่ม"},
    {"QAbstractSpinBox", "Step &down", "ลด"},
    {"QAbstractSpinBox", "&Select All", "เลือกทั้งหมด"},
    {"QComboBox", "Open the combo box selection popup", "เปิดรายการให้เลือก"},

    {"QScrollBar", "Scroll here", "เลื่อนมาที่นี่"},
    {"QScrollBar", "Left edge", "ซ้ายสุด"},
    {"QScrollBar", "Top", "บนสุด"},
    {"QScrollBar", "Right edge", "ขวาสุด"},
    {"QScrollBar", "Bottom", "ล่างสุด"},
    {"QScrollBar", "Page left", "หน้าทางซ้าย"},
    {"QScrollBar", "Page up", "หน้าก่อน"},
    {"QScrollBar", "Page right", "หน้าทางขวา"},
    {"QScrollBar", "Page down", "หน้าถัดไป"},
    {"QScrollBar", "Scroll left", "เลื่อนไปทางซ้าย"},
    {"QScrollBar", "Scroll up", "เลื่อนขึ้น"},
    {"QScrollBar", "Scroll right", "เลื่อนไปทางขวา"},
    {"QScrollBar", "Scroll down", "เลื่อนลง"},

    {"QPrintDialog", "Print", "พิมพ์"},
    {"QPrintDialog", "&Print", "พิมพ์"},
    {"QPrintDialog", "&Options >>", "ตัวเลือก >>"},
    {"QPrintDialog", "&Options <<", "ตัวเลือก <<"},
    {"QPrintDialog", "All Pages", "ทุกหน้า"},
    {"QPrintDialog", "Odd Pages", "หน้าคี่"},
    {"QPrintDialog", "Even Pages", "หน้าคู่"},
    {"QPrintDialog", "Print to File (PDF)", "พิมพ์ลงไฟล์ (PDF)"},
    {"QPrintDialog", "Print To File ...", "พิมพ์ลงไฟล์ ..."},
    {"QPrintDialog", "Write PDF file", "เขียนไฟล์ PDF"},
    {"QPrintDialog", "Local file", "ไฟล์ในเครื่อง"},
    {"QPrintDialog", "%1 already exists.\nDo you want to overwrite it?", "มี %1 อยู่แล้ว\nต้องการเขียนทับหรือไม่"},
    {"QPrintDialog", "The 'From' value cannot be greater than the 'To' value.",
        "หน้าเริ่มต้นต้องไม่มากกว่าหน้าสุดท้าย"},
    {"QPrintWidget", "Printer", "เครื่องพิมพ์"},
    {"QPrintWidget", "&Name:", "ชื่อ:"},
    {"QPrintWidget", "P&roperties", "คุณสมบัติ"},
    {"QPrintWidget", "Location:", "ตำแหน่ง:"},
    {"QPrintWidget", "Preview", "ดูก่อนพิมพ์"},
    {"QPrintWidget", "Type:", "ชนิด:"},
    {"QPrintWidget", "Output &file:", "ไฟล์:"},
};
// clang-format on

} // namespace

QString ThaiTexts::translate(
    const char* context, const char* sourceText, const char* /*disambiguation*/, int /*n*/) const {
    if (context == nullptr || sourceText == nullptr) {
        return {};
    }
    const auto* found = std::find_if(std::begin(texts), std::end(texts),
        [&](const ThaiText& text) { return text.source == sourceText && text.context == context; });
    return found == std::end(texts) ? QString() : QString::fromUtf8(found->thai);
}

} // namespace lodge
