// SPDX-License-Identifier: MIT
#include "benchmarks/PillowPeer.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <sys/wait.h>
#include <unistd.h>

namespace {

/// Answers each line on its standard input by one on its standard output.
const char kScript[] = R"(
import sys
from PIL import Image
picture = None
print('ready', flush=True)
while True:
    words = sys.stdin.buffer.readline().decode().split()
    if not words:
        break
    width, height = int(words[1]), int(words[2])
    if words[0] == 'picture':
        picture = Image.frombytes('RGB', (width, height), sys.stdin.buffer.read(width * height * 3))
    else:
        picture.resize((width, height), getattr(Image, words[3]))
    print('done', flush=True)
)";

} // namespace

std::unique_ptr<PillowPeer> PillowPeer::Start() {
    int commands[2];
    int answers[2];
    if (pipe(commands) != 0)
        return nullptr;
    if (pipe(answers) != 0) {
        close(commands[0]);
        close(commands[1]);
        return nullptr;
    }
    std::signal(SIGPIPE, SIG_IGN); // a peer that cannot start is no reason to end
    const pid_t process = fork();
    if (process == 0) {
        dup2(commands[0], STDIN_FILENO);
        dup2(answers[1], STDOUT_FILENO);
        for (const int end : {commands[0], commands[1], answers[0], answers[1]})
            close(end);
        if (!freopen("/dev/null", "w", stderr))
            _exit(127);
        execl("/usr/bin/python3", "python3", "-c", kScript, static_cast<char*>(nullptr));
        _exit(127);
    }
    close(commands[0]);
    close(answers[1]);
    std::unique_ptr<PillowPeer> peer(new PillowPeer);
    peer->m_process = process;
    peer->m_commands = fdopen(commands[1], "w");
    peer->m_answers = fdopen(answers[0], "r");
    return process > 0 && peer->Await() ? std::move(peer) : nullptr;
}

PillowPeer::~PillowPeer() {
    fclose(m_commands); // the end of its input ends it
    fclose(m_answers);
    if (m_process > 0)
        waitpid(m_process, nullptr, 0);
}

void PillowPeer::SetPicture(const IsImage& picture) {
    fprintf(m_commands, "picture %u %u\n", static_cast<unsigned>(picture.Width()),
            static_cast<unsigned>(picture.Height()));
    for (uint32_t y = 0; y < picture.Height(); ++y)
        fwrite(picture.RowPointer(y), 3, picture.Width(), m_commands);
    Tell("");
}

void PillowPeer::Resize(uint32_t width, uint32_t height, const std::string& filter) {
    Tell("resize " + std::to_string(width) + " " + std::to_string(height) + " " + filter + "\n");
}

void PillowPeer::Tell(const std::string& command) {
    fputs(command.c_str(), m_commands);
    fflush(m_commands);
    if (!Await()) {
        fputs("tintkit_image_bench: Pillow has ended\n", stderr);
        std::exit(1);
    }
}

bool PillowPeer::Await() {
    char line[16];
    return fgets(line, sizeof(line), m_answers) != nullptr;
}
