// A language server: what an editor asks about the description files that it shows.
#include "commands.h"
#include "server.h"
#include <cstdio>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

int lspCommand(const std::string& language)
{
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
#endif
    InboxCL inbox(stdin);
    ServerCL server(language);
    JsonTP message;
    for (;;) {
        // Findings are for whoever stops typing: first what has come already.
        if (!inbox.TakeM(&message, false)) {
            server.TellFindingsM();
            if (!inbox.TakeM(&message, true)) {
                return 1; // The client went without a word.
            }
        }
        if (!server.TakeM(message, inbox)) {
            return server.WasShutDownM() ? 0 : 1;
        }
    }
}
