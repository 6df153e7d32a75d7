// Ids of resources, controls and menu items. The resource compiler reads this file too.
#pragma once

#define IDI_OBRIN 1

#define IDR_MENU_BAR 10
#define IDR_TREE_POPUP 11

#define IDD_INPUT_BOX 20
#define IDD_UPDATE 21
#define IDD_ABOUT 22
#define IDD_HOST_NOTICE 23

// The Properties dialog and its pages, Frame(1) to Frame(3).
#define IDD_PROPERTIES 30
#define IDD_PAGE_GENERAL 31
#define IDD_PAGE_SETTINGS 32
#define IDD_PAGE_MARGINS 33

// Controls.
#define IDC_PROMPT 100
#define IDC_ANSWER 101

#define IDC_WAITED_FOR 110
#define IDC_FOLDER 111
#define IDC_REASON 112
#define IDC_PROGRESS 113

#define IDC_FRAME1 200
#define IDC_TREEVIEW1 201
#define IDC_COMMAND1 202
#define IDC_LABEL1 203
#define IDC_IMAGE1 204
#define IDC_LABEL2 205
#define IDC_LABEL3 206
#define IDC_LABEL4 207
#define IDC_LABEL5 208

#define IDC_PIC_ICON 210
#define IDC_LBL_TITLE 211
#define IDC_LBL_VERSION 212
#define IDC_LBL_DESCRIPTION 213
#define IDC_LBL_DISCLAIMER 214
#define IDC_CMD_SYS_INFO 215

// Command1(0) and Command1(1) of the Properties dialog are IDOK and IDCANCEL.
#define IDC_APPLY 220
#define IDC_TABSTRIP1 221
#define IDC_TXT_SYSTEM 222
#define IDC_TXT_PROGRAM_NAME 223
#define IDC_TXT_HELP_FILE 224
#define IDC_COMMAND2 225
#define IDC_TXT_HEIGHT 226
#define IDC_TXT_WIDTH 227
#define IDC_CMB_ORIENTATION 228
#define IDC_TXT_LINES 229
#define IDC_TXT_COLUMNS 230
#define IDC_TXT_FONT_SIZE 231
#define IDC_TXT_SAVE_TO_AS_START 232
// The first of four ids each, for the top, bottom, left and right margin.
#define IDC_TXT_MARGIN 240
#define IDC_SLD_MARGIN 250

// Items of the menu bar.
#define ID_BACKUP 300
#define ID_RESTORE 301
#define ID_SELECT_CO 302
#define ID_COPY_CO 303
#define ID_ERASE_CO 304
#define ID_REDIRECT_PRINT 305
#define ID_UPDATE 306
#define ID_PRINT_TEST 307
#define ID_CORE_HELP 310
#define ID_SYSTEM_HELP 311
#define ID_WEBSITE 312
#define ID_USER_SITE 313
#define ID_ABOUT 314

// Items of the tree's popup: mnuTreeView(1) and mnuTreeView(2).
#define ID_TREE_PROPERTIES 321
#define ID_TREE_HELP 322

// mnuSystems(i) is ID_SYSTEMS + i. mnuSystems(99) is the template.
#define SYSTEMS_TEMPLATE 99
#define ID_SYSTEMS 400
#define ID_SYSTEMS_TEMPLATE (ID_SYSTEMS + SYSTEMS_TEMPLATE)

// Texts of the string table: the defaults of a program's settings.
#define IDS_HELP_FOLDER 102
#define IDS_ORIENTATION 104
#define IDS_HEIGHT 105
#define IDS_WIDTH 106
#define IDS_LINES 107
#define IDS_COLUMNS 108
#define IDS_FONT_SIZE 109
#define IDS_TOP_MARGIN 110
#define IDS_BOTTOM_MARGIN 111
#define IDS_LEFT_MARGIN 112
#define IDS_RIGHT_MARGIN 113
