#pragma once

class HostObject;

// A page that edits a rectangle on the image holds the image of the current document: neither the selection
// of views nor an image processing may move the rectangle away from the pixels that it stands for.

void holdImageForArea(HostObject* host);
void releaseImageOfArea(HostObject* host);
