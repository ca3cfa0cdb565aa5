#pragma once

#include <string_view>

/// Keys of the messages that tell an author why an upload was refused, or that it was done. The words stand in the
/// language files; every box of them is titled `kDialog_Title_Waning_Info`.
namespace zdt {

inline constexpr std::string_view kDialog_Title_Waning_Info = "kDialog_Title_Waning_Info";

// Pictures
inline constexpr std::string_view kWarn_upload_include_ch = "kWarn_upload_include_ch";
inline constexpr std::string_view kWarn_upload_jpgorpng_pic = "kWarn_upload_jpgorpng_pic";
inline constexpr std::string_view kWarn_upload_jpgorpngorgif_pic = "kWarn_upload_jpgorpngorgif_pic";
inline constexpr std::string_view kWarn_upload_pic_lower = "kWarn_upload_pic_lower";
inline constexpr std::string_view kWarn_upload_lessthenoneM_pic = "kWarn_upload_lessthenoneM_pic";
inline constexpr std::string_view kWarn_upload_lessthenoneM_png_pic = "kWarn_upload_lessthenoneM_png_pic";
inline constexpr std::string_view kWarn_upload_lessthenone300_pic = "kWarn_upload_lessthenone300_pic";
inline constexpr std::string_view kWarn_upload_lessthenoneM_gif = "kWarn_upload_lessthenoneM_gif";

// Frame lists
inline constexpr std::string_view kWarn_frame_upload_tenpicture = "kWarn_frame_upload_tenpicture";
inline constexpr std::string_view kWarn_frame_upload_hundred = "kWarn_frame_upload_hundred";
inline constexpr std::string_view kWarn_frame_upload_gifonlyone = "kWarn_frame_upload_gifonlyone";

// Videos
inline constexpr std::string_view kWarn_upload_correct_unlock_video_nine_format =
    "kWarn_upload_correct_unlock_video_nine_format";
inline constexpr std::string_view kWarn_upload_correct_unlock_video_wallpaper_format =
    "kWarn_upload_correct_unlock_video_wallpaper_format";
inline constexpr std::string_view kWarn_upload_correct_unlock_video_nine_size =
    "kWarn_upload_correct_unlock_video_nine_size";
inline constexpr std::string_view kWarn_upload_correct_unlock_video_nine_files =
    "kWarn_upload_correct_unlock_video_nine_files";
inline constexpr std::string_view kWarn_upload_correct_unlock_video_victory =
    "kWarn_upload_correct_unlock_video_victory";
inline constexpr std::string_view kWarn_upload_correct_unlock_video_nine_false =
    "kWarn_upload_correct_unlock_video_nine_false";

} // namespace zdt
