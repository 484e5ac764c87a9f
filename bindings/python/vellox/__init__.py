"""PowerPoint decks by program. Everything is in vellox.ppt."""
