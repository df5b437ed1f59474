#include "tools/skp-dump/value_text.h"

#include "tools/model_opening/su_lists.h"

std::string value_text(SUTypedValueRef value) {
    enum SUTypedValueType type = SUTypedValueType_Empty;
    SUTypedValueGetType(value, &type);
    switch (type) {
    case SUTypedValueType_Byte: {
        char number = 0;
        SUTypedValueGetByte(value, &number);
        return std::to_string(number);
    }
    case SUTypedValueType_Short: {
        std::int16_t number = 0;
        SUTypedValueGetInt16(value, &number);
        return std::to_string(number);
    }
    case SUTypedValueType_Int32: {
        std::int32_t number = 0;
        SUTypedValueGetInt32(value, &number);
        return std::to_string(number);
    }
    case SUTypedValueType_Float: {
        float number = 0;
        SUTypedValueGetFloat(value, &number);
        return std::to_string(number);
    }
    case SUTypedValueType_Double: {
        double number = 0;
        SUTypedValueGetDouble(value, &number);
        return std::to_string(number);
    }
    case SUTypedValueType_Bool: {
        bool truth = false;
        SUTypedValueGetBool(value, &truth);
        return truth ? "true" : "false";
    }
    case SUTypedValueType_Color: {
        SUColor color = {};
        SUTypedValueGetColor(value, &color);
        return "(" + std::to_string(color.red) + ", " + std::to_string(color.green) + ", " +
               std::to_string(color.blue) + ", " + std::to_string(color.alpha) + ")";
    }
    case SUTypedValueType_Time: {
        std::int64_t seconds = 0;
        SUTypedValueGetTime(value, &seconds);
        return "time " + std::to_string(seconds);
    }
    case SUTypedValueType_String:
        return '"' + su_text(value, SUTypedValueGetString) + '"';
    case SUTypedValueType_Vector3D: {
        double v[3] = {};
        SUTypedValueGetVector3d(value, v);
        return "(" + std::to_string(v[0]) + ", " + std::to_string(v[1]) + ", " + std::to_string(v[2]) + ")";
    }
    case SUTypedValueType_Array: {
        std::size_t count = 0;
        SUTypedValueGetNumArrayItems(value, &count);
        return "array of " + std::to_string(count);
    }
    default:
        return "nothing";
    }
}
