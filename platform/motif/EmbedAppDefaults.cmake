# Writes the app-defaults file SOURCE as a C++ text to OUTPUT.
file(READ ${SOURCE} text)
file(WRITE ${OUTPUT} "// Made by the build from resources/app-defaults/Trellis.\n#include \"motif/AppDefaults.h\"\n\nnamespace trellis {\n\nconst char* const appDefaults = R\"defaults(${text})defaults\";\n\n} // namespace trellis\n")
