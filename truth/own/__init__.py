"""A user's own tables and queries on both servers; truth/check starts this."""
