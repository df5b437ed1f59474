#pragma once

// The numbers of what stands in the resource file. Programs that drive the windows from outside know them.

#define DIALOG_PROGRESS 4028
#define CONTROL_PROGRESS_BAR 12047
#define CONTROL_PROGRESS_TEXT 5020

#define DIALOG_ERROR 12042
#define DIALOG_ERROR_REPORT 12049
#define CONTROL_SILENCE 12043
#define CONTROL_MESSAGE 12044
#define CONTROL_MORE 12045
#define CONTROL_COPY 12046
