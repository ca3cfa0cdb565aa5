#pragma once

/// The names of the notifications. They are compared in full and with their case, and each constant is named as it is
/// spelled, with its misspellings.
namespace zdt::notify {

// Of the window kit itself
inline constexpr const char* windowinit = "windowinit";
inline constexpr const char* click = "click";
inline constexpr const char* selectchanged = "selectchanged";
inline constexpr const char* timer = "timer";
inline constexpr const char* setfocus = "setfocus";
inline constexpr const char* killfocus = "killfocus";
inline constexpr const char* link = "link";

// Of its edit boxes and list rows
inline constexpr const char* textchanged = "textchanged";
inline constexpr const char* listitemmousenter = "listitemmousenter";
inline constexpr const char* listitemmousleave = "listitemmousleave";
inline constexpr const char* returnKey = "return"; // The word is the language's own.

// Of the program
inline constexpr const char* Add_ResEditChangeUnlockPendant_Edit = "Add_ResEditChangeUnlockPendant_Edit";
inline constexpr const char* Add_Reset = "Add_Reset";
inline constexpr const char* Init_ResEditChangeUnlockPendantAlpha = "Init_ResEditChangeUnlockPendantAlpha";
inline constexpr const char* Init_ResEditChangeUnlockPendantFrame = "Init_ResEditChangeUnlockPendantFrame";
inline constexpr const char* Init_ResEditChangeUnlockPendantScale = "Init_ResEditChangeUnlockPendantScale";
inline constexpr const char* Init_ResEditChangeUnlockPendantTranslate = "Init_ResEditChangeUnlockPendantTranslate";
inline constexpr const char* MESSAGE_SET_PREVIEW_INDEX = "MESSAGE_SET_PREVIEW_INDEX";
inline constexpr const char* Nodfiy_SendMsg_MouseMove_Item = "Nodfiy_SendMsg_MouseMove_Item";
inline constexpr const char* Nodfiy_SendMsg_MouseSize_Item = "Nodfiy_SendMsg_MouseSize_Item";
inline constexpr const char* Nodfiy_SendMsg_Select_Item = "Nodfiy_SendMsg_Select_Item";
inline constexpr const char* Nodfiy_SendMsg_Video_Select_Item = "Nodfiy_SendMsg_Video_Select_Item";
inline constexpr const char* Nodfiy_ShowBatteryPic = "Nodfiy_ShowBatteryPic";
inline constexpr const char* Notify_AddUnlockMsgCtrl = "Notify_AddUnlockMsgCtrl";
inline constexpr const char* Notify_ChangeTheme = "Notify_ChangeTheme";
inline constexpr const char* Notify_CoverCapture_Msg = "Notify_CoverCapture_Msg";
inline constexpr const char* Notify_CreatePendantInPreView = "Notify_CreatePendantInPreView";
inline constexpr const char* Notify_CreatePendantInPreView_SlideToApp = "Notify_CreatePendantInPreView_SlideToApp";
inline constexpr const char* Notify_CreatePendantInPreView_UnlockWallPaper =
    "Notify_CreatePendantInPreView_UnlockWallPaper";
inline constexpr const char* Notify_Create_OwnInfo = "Notify_Create_OwnInfo";
inline constexpr const char* Notify_DelPendantPreView = "Notify_DelPendantPreView";
inline constexpr const char* Notify_DelUnlockMsgCtrl = "Notify_DelUnlockMsgCtrl";
inline constexpr const char* Notify_DelUnlockStyle = "Notify_DelUnlockStyle";
inline constexpr const char* Notify_Drag_File = "Notify_Drag_File";
inline constexpr const char* Notify_Drag_File_Simple = "Notify_Drag_File_Simple";
inline constexpr const char* Notify_Drag_File_Simple_9PNG = "Notify_Drag_File_Simple_9PNG";
inline constexpr const char* Notify_Dynamic_IconCreatShow = "Notify_Dynamic_IconCreatShow";
inline constexpr const char* Notify_Error_List_Msg = "Notify_Error_List_Msg";
inline constexpr const char* Notify_Error_List_refresh = "Notify_Error_List_refresh";
inline constexpr const char* Notify_ExportLauncher = "Notify_ExportLauncher";
inline constexpr const char* Notify_Get_Pendant_List_Info_Msg = "Notify_Get_Pendant_List_Info_Msg";
inline constexpr const char* Notify_KillFocus_PendName_Eidt_Msg = "Notify_KillFocus_PendName_Eidt_Msg";
inline constexpr const char* Notify_Modify_Show_Pendant_List_Info = "Notify_Modify_Show_Pendant_List_Info";
inline constexpr const char* Notify_OutputReloadLauncher = "Notify_OutputReloadLauncher";
inline constexpr const char* Notify_Pendant_Edit_Close_Msg = "Notify_Pendant_Edit_Close_Msg";
inline constexpr const char* Notify_Pendatn_Play_Stop_Msg = "Notify_Pendatn_Play_Stop_Msg";
inline constexpr const char* Notify_Pic_Hint = "Notify_Pic_Hint";
inline constexpr const char* Notify_Pic_Hint_Reset = "Notify_Pic_Hint_Reset";
inline constexpr const char* Notify_Picture_Show_Pendant_List_Info = "Notify_Picture_Show_Pendant_List_Info";
inline constexpr const char* Notify_Refresh_Pendant_List_Info_Msg = "Notify_Refresh_Pendant_List_Info_Msg";
inline constexpr const char* Notify_ReloadBigorSmall = "Notify_ReloadBigorSmall";
inline constexpr const char* Notify_ReloadDataMsg = "Notify_ReloadDataMsg";
inline constexpr const char* Notify_ReloadTopTitleText = "Notify_ReloadTopTitleText";
inline constexpr const char* Notify_ReloadUnlockPageMsg = "Notify_ReloadUnlockPageMsg";
inline constexpr const char* Notify_Reload_List_Common = "Notify_Reload_List_Common";
inline constexpr const char* Notify_Reload_Other_Icon_Msg = "Notify_Reload_Other_Icon_Msg";
inline constexpr const char* Notify_ResEditUnlockChangePendantAddPendCheck =
    "Notify_ResEditUnlockChangePendantAddPendCheck";
inline constexpr const char* Notify_ResetCheck = "Notify_ResetCheck";
inline constexpr const char* Notify_Reset_Multi_Wallpaper = "Notify_Reset_Multi_Wallpaper";
inline constexpr const char* Notify_Save_Eidt_Pendant_Click = "Notify_Save_Eidt_Pendant_Click";
inline constexpr const char* Notify_ScreenCapture_ChangeUnlockMsg = "Notify_ScreenCapture_ChangeUnlockMsg";
inline constexpr const char* Notify_ScreenCapture_Msg = "Notify_ScreenCapture_Msg";
inline constexpr const char* Notify_ScreenCapture_VideoUnlockMsg = "Notify_ScreenCapture_VideoUnlockMsg";
inline constexpr const char* Notify_Select_ChangeUnlock_Button = "Notify_Select_ChangeUnlock_Button";
inline constexpr const char* Notify_Select_initItem_Msg = "Notify_Select_initItem_Msg";
inline constexpr const char* Notify_Select_initItem_System_Msg = "Notify_Select_initItem_System_Msg";
inline constexpr const char* Notify_Select_initItem_mms_Msg = "Notify_Select_initItem_mms_Msg";
inline constexpr const char* Notify_SetFirstPage = "Notify_SetFirstPage";
inline constexpr const char* Notify_Version5And8Adapter = "Notify_Version5And8Adapter";
inline constexpr const char* Notify_deep_tint_Msg = "Notify_deep_tint_Msg";
inline constexpr const char* Notify_deep_tint_Video_Msg = "Notify_deep_tint_Video_Msg";
inline constexpr const char* Notify_icon_dtnamic_big_Msg = "Notify_icon_dtnamic_big_Msg";
inline constexpr const char* Notify_icon_dtnamic_sma_Msg = "Notify_icon_dtnamic_sma_Msg";
inline constexpr const char* Notify_main_refresh_changeunlock = "Notify_main_refresh_changeunlock";
inline constexpr const char* Notify_main_refresh_videounlock = "Notify_main_refresh_videounlock";
inline constexpr const char* Notify_main_refresh_wallpaper_video = "Notify_main_refresh_wallpaper_video";
inline constexpr const char* Notify_reload_list_pendant = "Notify_reload_list_pendant";
inline constexpr const char* Notify_unlock_to_wallpaper_Msg = "Notify_unlock_to_wallpaper_Msg";
inline constexpr const char* Notify_unlock_to_wallpaper_sec_Msg = "Notify_unlock_to_wallpaper_sec_Msg";
inline constexpr const char* Notify_video_to_mainframe_Msg = "Notify_video_to_mainframe_Msg";
inline constexpr const char* Notify_video_to_mainframe_without_Msg = "Notify_video_to_mainframe_without_Msg";
inline constexpr const char* Refulsh_Preview_Picture_Msg = "Refulsh_Preview_Picture_Msg";
inline constexpr const char* Reload_Picture_Lists = "Reload_Picture_Lists";
inline constexpr const char* Reload_change_unlock_pendant_ratio = "Reload_change_unlock_pendant_ratio";
inline constexpr const char* Reload_change_unlock_ratio = "Reload_change_unlock_ratio";
inline constexpr const char* Reload_history_themes = "Reload_history_themes";
inline constexpr const char* Reload_pendant_refresh_ratio = "Reload_pendant_refresh_ratio";
inline constexpr const char* Set_Source_Rect_Value = "Set_Source_Rect_Value";
inline constexpr const char* Set_Source_Rect_Value_Pendant = "Set_Source_Rect_Value_Pendant";
inline constexpr const char* Set_Video_Source_Rect_Value = "Set_Video_Source_Rect_Value";

// Of the picture strips
inline constexpr const char* Replace_Picture_Notify = "Replace_Picture_Notify";
inline constexpr const char* Add_Multi_Wallpaper_Notify = "Add_Multi_Wallpaper_Notify";
inline constexpr const char* ADD_PENDANT_ITEM = "ADD_PENDANT_ITEM";
inline constexpr const char* DEL_PENDANT_ITEM = "DEL_PENDANT_ITEM";
inline constexpr const char* CLICK_PENDANT_ITEM = "CLICK_PENDANT_ITEM";
inline constexpr const char* SOWP_PENDANT_ITEM = "SOWP_PENDANT_ITEM";

} // namespace zdt::notify
