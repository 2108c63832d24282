# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT

# Tests that an emulator takes too long for. They are built for the board too, and script/board --all
# runs them. Not among them: a test of the core, of the toolkit or of the loaded plug-in.
set(MPB_SLOW_UNDER_EMULATION
    # The gallery is a program for the desktop. Its tests draw each page in four languages,
    test_gallerypictures
    # measure each text on them,
    test_gallerylayout
    # turn to every page by hand,
    test_gallerywindow
    # and start the whole program for each page and each mistake in its options.
    test_galleryprogram
    # Photographs of the window, pixel by pixel. What is on them comes from the same sources as on
    # the desktop; that each thing is there, other tests of the window ask.
    test_editorphotos)
