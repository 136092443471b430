#!/usr/bin/env python3
"""Installs the library and builds and runs a program with what was installed, and nothing else:
package_test.py BUILD-FOLDER WORK-FOLDER TOOLCHAIN EMULATOR."""
import os
import shutil
import subprocess
import sys

BUILD, WORK, TOOLCHAIN, EMULATOR = sys.argv[1:5]
HERE = os.path.dirname(os.path.abspath(__file__))


def run(*command):
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, text=True)
    if result.returncode != 0:
        sys.exit(f"{' '.join(command)}\n{result.stdout}\nresult {result.returncode}")


shutil.rmtree(WORK, ignore_errors=True)
prefix, build = os.path.join(WORK, "prefix"), os.path.join(WORK, "build")
run("cmake", "--install", BUILD, "--prefix", prefix)
arguments = [f"-DCMAKE_TOOLCHAIN_FILE={TOOLCHAIN}"] if TOOLCHAIN else []
run("cmake", "-G", "Ninja", "-S", os.path.join(HERE, "embedder"), "-B", build, f"-DCMAKE_PREFIX_PATH={prefix}",
    "-DCMAKE_BUILD_TYPE=Release", f"-DCMAKE_RUNTIME_OUTPUT_DIRECTORY={prefix}/bin", *arguments)
run("cmake", "--build", build)
run(*([EMULATOR] if EMULATOR else []), os.path.join(prefix, "bin", "embedder.exe"))
