# SPDX-License-Identifier: MIT
"""What the runnable examples share."""
